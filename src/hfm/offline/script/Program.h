#pragma once

#include "hfm/offline/script/SyntaxTree.h"

#include <memory_resource>
#include <type_traits>

namespace hfm::offline::script {

struct Parameter
{
    bool isByReference = true;
};

/// A Sub or Function; the script's own statements are one without a name. Its slots are the
/// parameters, then the result of a function, then the variables.
struct Procedure
{
    NameId name = -1;
    bool isFunction = false;
    Position position;
    std::vector<Parameter> parameters;
    qint32 slotCount = 0;
    Block body;
    qint32 nesting = 0; ///< how deep its statements and expressions nest

    qint32 resultSlot() const { return qint32(parameters.size()); }
};

/// A script that was read. Nothing in it changes when it is run.
class Program
{
public:
    Program() = default;
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    NameTable names;
    std::deque<Value> literals;
    std::vector<Procedure> procedures;
    Procedure main; ///< what stands outside the procedures; its slots are the global ones

    /// The procedure's position, or -1.
    qint32 findProcedure(QStringView name) const;

    template <typename Node>
    Node *make(const Node &node)
    {
        static_assert(std::is_trivially_destructible_v<Node>);
        return new (mArena.allocate(sizeof(Node), alignof(Node))) Node(node);
    }
    template <typename Item>
    std::span<Item> keep(const std::vector<Item> &items)
    {
        static_assert(std::is_trivially_copyable_v<Item>);
        if (items.empty())
            return {};
        auto *kept =
            static_cast<Item *>(mArena.allocate(items.size() * sizeof(Item), alignof(Item)));
        std::uninitialized_copy(items.begin(), items.end(), kept);
        return {kept, items.size()};
    }

private:
    std::pmr::monotonic_buffer_resource mArena;
};

/// Reads a script. `objects` are the names of the host's objects. Fails with ScriptError where the
/// text is no script; names that nothing is known of are errors only when they are met in a run.
std::unique_ptr<const Program> readProgram(QStringView text, const QList<QString> &objects);

} // namespace hfm::offline::script
