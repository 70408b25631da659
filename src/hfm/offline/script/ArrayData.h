#pragma once

#include "hfm/offline/script/Value.h"

#include <QVarLengthArray>

#include <span>
#include <vector>

namespace hfm::offline::script {

/// The elements of an array; lower bounds are 0. Elements stand with the first subscript varying
/// fastest, as For Each visits them.
struct ArrayData : Counted
{
    /// How many subscripts each dimension has; none at all for an array that was declared without
    /// bounds and not given any yet.
    using Extents = QVarLengthArray<qint32, 4>;
    static constexpr qsizetype mostDimensions = 60;

    Extents extents;
    std::vector<Value> elements;
    Memory *memory;

    ArrayData(const Extents &sizes, Memory &owner);
    ~ArrayData();
    ArrayData(const ArrayData &) = delete;
    ArrayData &operator=(const ArrayData &) = delete;

    /// Makes an array of one dimension.
    static ArrayData *ofSize(qsizetype size, Memory &memory);
    ArrayData *copy() const;

    /// The element, or a failure with BadSubscript.
    Value &at(std::span<const qint32> subscripts);
};

inline ArrayData *Value::asArray() const
{
    return static_cast<ArrayData *>(mCounted);
}

inline Value Value::array(ArrayData *data)
{
    Value result(Kind::Array);
    result.mCounted = data;
    return result;
}

/// Destroys an array that nobody refers to any more, without recursion however deep arrays stand in
/// arrays.
void destroyArray(ArrayData *data);

/// The array of a variable, to write to: one that no other variable shares. `slot` must be of kind
/// Array. Charges the copy to `bounds`.
ArrayData &writableArray(Value &slot, Bounds &bounds);

} // namespace hfm::offline::script
