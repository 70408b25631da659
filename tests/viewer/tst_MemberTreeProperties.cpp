#include "runtime/RuntimeError.h"
#include "support/FakeHfm.h"
#include "viewer/MemberTree.h"

#include <QTest>
#include <rapidcheck.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The member tree as one would say it: path entries as texts, and each node's parent searched for
/// among the texts of the nodes before it, from the newest back.
class PlainTree
{
public:
    struct Node
    {
        QString tag;
        QString text;
        int parent;
    };

    explicit PlainTree(hfm::Dimension &dimension) : mDimension(dimension) {}

    void load(const MemberTree::TextOf &textOf)
    {
        for (hfm::MemberId id : mDimension.EnumChildMembers(-1, -1)) {
            const QString label = mDimension.GetMemberLabel(id);
            mMemberPaths.append(u"-1_ROOT#%1_"_s.arg(id) + label);
            addChildMembers(id, label);
        }
        for (const QString &entry : mMemberPaths)
            addNode(entry, textOf);
    }

    QList<Node> nodes;

private:
    void addChildMembers(hfm::MemberId parent, const QString &parentLabel)
    {
        for (hfm::MemberId child : mDimension.EnumChildMembers(-1, parent)) {
            const QString label = mDimension.GetMemberLabel(child);
            mMemberPaths.append(QString::number(parent) + u'_' + parentLabel + u'#' +
                                QString::number(child) + u'_' + label);
            addChildMembers(child, label);
        }
    }

    static QString childPart(const QString &entry) { return entry.mid(entry.indexOf(u'#') + 1); }

    void addNode(const QString &entry, const MemberTree::TextOf &textOf)
    {
        const QString parentPart = entry.left(entry.indexOf(u'#'));
        int parent = -1;
        if (parentPart != u"-1_ROOT")
            for (parent = int(nodes.size()) - 1; parent >= 0; --parent)
                if (childPart(nodes[parent].tag) == parentPart)
                    break;
        nodes.append({{}, {}, parent});
        const QString child = childPart(entry);
        bool isNumber = false;
        const int id = child.left(child.indexOf(u'_')).toInt(&isNumber);
        if (!isNumber)
            throw RuntimeError(TypeMismatch);
        nodes.last().text = textOf(id);
        nodes.last().tag = entry;
    }

    hfm::Dimension &mDimension;
    QStringList mMemberPaths;
};

/// Labels that are as awkward as can be for a reader of path entries: mostly plain ones, and such
/// as shift the parts of their children's entries onto other members' IDs.
rc::Gen<QString> anyLabel()
{
    const auto digit =
        rc::gen::map(rc::gen::inRange(0, 12), [](int n) { return QString::number(n); });
    const auto piece = rc::gen::oneOf(
        digit, rc::gen::element(u"#"_s, u"_"_s, u"A"_s, u"-1_ROOT"_s, u"ROOT"_s, u" "_s, u"-"_s));
    const auto jumble = rc::gen::map(rc::gen::container<std::vector<QString>>(piece),
                                     [](const std::vector<QString> &pieces) {
                                         QString text;
                                         for (const QString &each : pieces)
                                             text += each;
                                         return text;
                                     });
    const auto shifting =
        rc::gen::map(digit, [](const QString &n) { return u"A#"_s + n + u"_B"_s; });
    const auto plain = rc::gen::element(u"A"_s, u"B"_s, u"A_B"_s);
    return rc::gen::weightedOneOf<QString>({{12, plain}, {3, shifting}, {1, jumble}});
}

/// Members 0, 1, 2, ..., each below some of the members before it, the root among them: shared
/// members and shared parents, but no circles.
void fillWithAnyHierarchy(FakeMembers &members)
{
    const int count = *rc::gen::inRange(0, 16);
    for (int i = 0; i < count; ++i) {
        const int parents = *rc::gen::weightedElement<int>({{5, 1}, {3, 2}, {1, 3}});
        members.addUnplaced(QString::number(i));
        for (int p = 0; p < parents; ++p)
            members.add(*rc::gen::inRange(hfm::rootMember, i), QString::number(i));
    }
    for (int i = 0; i < count; ++i)
        members.at(i).label = *anyLabel();
}

template <typename Action>
qint32 errorOf(const Action &action)
{
    try {
        action();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

void compare(const MemberTree &tree, const PlainTree &plain)
{
    RC_ASSERT(tree.count() == plain.nodes.size());
    std::vector<qint32> children(plain.nodes.size() + 1);
    std::vector<qint32> levels(plain.nodes.size() + 1, 0);
    for (qint32 node = 0; node < tree.count(); ++node) {
        const PlainTree::Node &expected = plain.nodes[node];
        RC_ASSERT(tree.parent(node) == expected.parent);
        RC_ASSERT(tree.text(node) == expected.text);
        RC_ASSERT(tree.tag(node) == expected.tag);
        // The node where the building ended has no tag yet, nor a key.
        RC_ASSERT(tree.key(node) ==
                  (expected.tag.isEmpty() ? QString() : u"KEY"_s + QString::number(node)));
        RC_ASSERT(tree.row(node) == children[size_t(expected.parent + 1)]++);
        RC_ASSERT(tree.child(expected.parent, tree.row(node)) == node);
        levels[size_t(node + 1)] = 1 + levels[size_t(expected.parent + 1)];
        RC_ASSERT(tree.level(node) == levels[size_t(node + 1)]);
    }
    for (qint32 node = -1; node < tree.count(); ++node)
        RC_ASSERT(tree.childCount(node) == children[size_t(node + 1)]);
    RC_ASSERT(tree.maxLevel() == std::max(1, *std::max_element(levels.begin(), levels.end())));
}

} // namespace

class tst_MemberTreeProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!qEnvironmentVariableIsSet("RC_PARAMS"))
            qputenv("RC_PARAMS", "max_success=1000");
    }

    void theTreeIsThatOfTheBackwardSearch()
    {
        int whole = 0;
        int failed = 0;
        int attachedElsewhere = 0;
        const bool holds = rc::check([&] {
            FakeHfm hfm;
            FakeDimension &dimension = hfm.application().account();
            fillWithAnyHierarchy(dimension.members());
            const auto textOf = [&](hfm::MemberId member) {
                return dimension.GetMemberLabel(member) + u" - "_s;
            };
            PlainTree plain(dimension);
            const qint32 plainError = errorOf([&] { plain.load(textOf); });

            MemberTree tree;
            MemberPaths paths;
            paths.read(dimension);
            const qint32 error = errorOf([&] { tree.build(paths, textOf); });

            RC_ASSERT(error == plainError);
            compare(tree, plain);
            ++(error == 0 ? whole : failed);
            for (qint32 node = 0; node < tree.count(); ++node)
                attachedElsewhere += tree.parent(node) != paths.at(node).parent;
        });
        QVERIFY(holds);
        // The test has seen what it is for.
        QVERIFY(whole > 0);
        QVERIFY(failed > 0);
        QVERIFY(attachedElsewhere > 0);
    }
};

QTEST_APPLESS_MAIN(tst_MemberTreeProperties)
#include "tst_MemberTreeProperties.moc"
