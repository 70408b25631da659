#include "appinfo/ParentLabels.h"
#include "support/Errors.h"
#include "support/FakeHfm.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ParentLabels : public QObject
{
    Q_OBJECT

private:
    FakeHfm mHfm;

    FakeDimension &dimension(const QString &outline)
    {
        FakeDimension &fresh = mHfm.newApplication().entity();
        fresh.setMembers(outline);
        return fresh;
    }

private Q_SLOTS:
    void parentsStandInTheClientsOrderEachOnce()
    {
        QCOMPARE(parentLabels(dimension(u"Q\n  A\nP\n  R\n    B\n  Q\nS\n  R\n"_s)),
                 QStringList({u"Q"_s, u"P"_s, u"R"_s, u"S"_s}));
    }

    void baseMembersAreNeverOffered()
    {
        QCOMPARE(parentLabels(dimension(u"A\nB\n"_s)), QStringList());
    }

    void aDimensionWithoutMembersHasNoParents()
    {
        QCOMPARE(parentLabels(dimension({})), QStringList());
    }

    void moreThan32767MembersOverflow()
    {
        FakeDimension &entity = dimension({});
        for (int i = 0; i < 32'767; ++i)
            entity.members().add(hfm::rootMember, QString::number(i));
        QCOMPARE(parentLabels(entity), QStringList());
        entity.members().add(hfm::rootMember, u"one more"_s);
        const auto error = errorOf([&] { parentLabels(entity); });
        QVERIFY(error);
        QCOMPARE(error->number(), Overflow);
    }
};

QTEST_APPLESS_MAIN(tst_ParentLabels)
#include "tst_ParentLabels.moc"
