#include "appinfo/BaseMemberCompare.h"
#include "appinfo/Duplicates.h"
#include "appinfo/SharedMembers.h"
#include "PairwiseAnalyses.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

#include <rapidcheck.h>

using namespace Qt::StringLiterals;

namespace {

/// A number from `first` to before `end`, each as likely as any other from the first test on.
int anyNumber(int first, int end)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(first, end));
}

/// Members 0, 1, 2, ..., each below some of the members before it, the root among them: shared
/// members and shared parents, but no circles.
void fillWithAnyHierarchy(FakeMembers &members)
{
    const int count = anyNumber(1, 20);
    for (int i = 0; i < count; ++i) {
        const int parents = *rc::gen::weightedElement<int>({{1, 0}, {5, 1}, {4, 2}, {1, 3}});
        members.addUnplaced(u"M%1"_s.arg(i));
        for (int p = 0; p < parents; ++p)
            members.add(anyNumber(hfm::rootMember, i), u"M%1"_s.arg(i));
    }
}

int lineCount(const QString &text)
{
    return int(text.count(u'\n'));
}

} // namespace

/// The linear searches against the pairwise ones, on hierarchies with shared members and parents.
class tst_AnalysisProperties : public QObject
{
    Q_OBJECT

private:
    /// Checks a property on many hierarchies. `property(dimension)` gives the number of lines that
    /// it compared, so that nobody takes the comparison of empty texts for a proof.
    template <typename Property>
    static void check(Property property)
    {
        int lines = 0;
        const bool holds = rc::check([&] {
            FakeHfm hfm;
            FakeDimension &dimension = hfm.application().entity();
            fillWithAnyHierarchy(dimension.members());
            lines += property(dimension);
        });
        QVERIFY(holds);
        QVERIFY(lines > 100);
    }

private Q_SLOTS:
    void duplicatesAreThoseOfThePairwiseSearch()
    {
        check([](FakeDimension &dimension) {
            int lines = 0;
            for (hfm::MemberId parent = 0; parent < dimension.members().count(); ++parent) {
                const bool isEmpty = !dimension.GetHasChildren(parent);
                QString text;
                const auto error = errorOf(
                    [&] { Duplicates::append(dimension, dimension.GetMemberLabel(parent), text); });
                RC_ASSERT(error.has_value() == isEmpty);
                RC_ASSERT(text == Pairwise::duplicates(dimension, parent));
                lines += lineCount(text);
            }
            return lines;
        });
    }

    void missingBaseMembersAreThoseOfThePairwiseSearch()
    {
        check([](FakeDimension &dimension) {
            int lines = 0;
            const hfm::MemberId count = dimension.members().count();
            for (int pair = 0; pair < count * count; ++pair) {
                const hfm::MemberId from = pair / count;
                const hfm::MemberId to = pair % count;
                const bool isEmpty =
                    !dimension.GetHasChildren(from) || !dimension.GetHasChildren(to);
                QString text;
                const auto error = errorOf([&] {
                    BaseMemberCompare::append(dimension, dimension.GetMemberLabel(from),
                                              dimension.GetMemberLabel(to), text);
                });
                RC_ASSERT(error.has_value() == isEmpty);
                RC_ASSERT(text == (isEmpty ? QString() : Pairwise::missing(dimension, from, to)));
                lines += lineCount(text);
            }
            return lines;
        });
    }

    void sharedMembersAreThoseOfThePairwiseSearch()
    {
        check([](FakeDimension &dimension) {
            hfm::Occurrences table;
            Pairwise::addOccurrences(dimension, hfm::rootMember, table);
            const hfm::Occurrences walked = SharedMembers::occurrences(dimension);
            RC_ASSERT(walked.members == table.members);
            RC_ASSERT(walked.parents == table.parents);
            const QString text = SharedMembers::report(dimension, walked);
            RC_ASSERT(text == Pairwise::sharedMembers(dimension, table));
            return lineCount(text);
        });
    }
};

QTEST_APPLESS_MAIN(tst_AnalysisProperties)
#include "tst_AnalysisProperties.moc"
