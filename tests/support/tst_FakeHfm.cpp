#include "support/FakeServices.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_FakeHfm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOutlineGivesMembersInOrderOfFirstAppearance()
    {
        FakeHfm hfm;
        FakeDimension &entity = hfm.application().entity();
        entity.setMembers(
            u"GROUP|Group\n  US01|US unit|Unité US\n    NY\nLEGAL\n  us01\n  FR01\n"_s);
        QCOMPARE(entity.EnumAllMemberLabels(),
                 QStringList({u"GROUP"_s, u"US01"_s, u"NY"_s, u"LEGAL"_s, u"FR01"_s}));
        QCOMPARE(entity.EnumChildMembers(hfm::allChildren, hfm::rootMember),
                 QList<hfm::MemberId>({0, 3}));
        QCOMPARE(entity.EnumHierarchy().members, QList<hfm::MemberId>({0, 1, 2, 3, 1, 2, 4}));
        QCOMPARE(entity.EnumHierarchy().parents, QList<hfm::MemberId>({-1, 0, 1, -1, 3, 1, 3}));
        QCOMPARE(entity.GetMemberDescription(1, 1), u"Unité US"_s);
        QCOMPARE(entity.GetMemberDescription(0, 1), QString());
    }

    void callsAreRecordedInOrder()
    {
        FakeHfm hfm;
        hfm.openSession()->GetMetadata()->GetEntityDimension()->EnumAllMembers();
        QCOMPARE(hfm.calls().made(),
                 QStringList({u"GetMetadata"_s, u"GetEntityDimension"_s, u"EnumAllMembers"_s}));
        hfm.calls().clear();
        QCOMPARE(hfm.calls().count("EnumAllMembers"_L1), 0);
    }

    void theNthCallOfAnOperationFailsAndNoOther()
    {
        FakeHfm hfm;
        FakeDimension &year = hfm.application().dimension(FakeKind::Year);
        hfm.calls().fail("EnumAllMembers"_L1, RuntimeError(Overflow), 2);
        year.EnumAllMembers();
        year.EnumAllMemberLabels();
        QVERIFY_THROWS_EXCEPTION(RuntimeError, year.EnumAllMembers());
        year.EnumAllMembers();
    }

    void theNthCallOfAnyOperationFails()
    {
        FakeHfm hfm;
        FakeDimension &year = hfm.application().dimension(FakeKind::Year);
        hfm.calls().fail({}, RuntimeError(Overflow), 2);
        year.EnumAllMembers();
        QVERIFY_THROWS_EXCEPTION(RuntimeError, year.EnumAllMemberLabels());
    }

    void logonAndOpeningAnswerAsScripted()
    {
        FakeHfm hfm;
        hfm.logonAnswers() = {false, true};
        hfm.openAnswers() = {false};
        const auto userInterface = hfm.createLogonUserInterface();
        const auto client = hfm.createClient();
        client->Initialize(userInterface);
        QVERIFY(!client->Logon(false));
        QCOMPARE(userInterface->GetLogonInfo().userName, QString());
        QVERIFY(client->Logon(false));
        QCOMPARE(userInterface->GetLogonInfo().userName, u"admin"_s);

        hfm::OpenedApplication opened;
        QString cluster;
        QString application;
        QVERIFY(!client->OpenApplication(opened, cluster, application));
        QVERIFY(!opened.session);
        QVERIFY(client->OpenApplication(opened, cluster, application));
        QCOMPARE(opened.applicationName, u"Comma"_s);
        QCOMPARE(opened.session->GetSystemInfo()->GetClusterName(), u"Cluster"_s);
    }

    void servicesAnswerAndNote()
    {
        FakeServices fakes;
        fakes.prompts.answers = {Prompts::Answer::No};
        const Prompt question{u"T"_s, u"Again?"_s, Prompt::Icon::Critical, Prompt::Buttons::YesNo};
        QCOMPARE(fakes.services.prompts.ask(question), Prompts::Answer::No);
        QCOMPARE(fakes.services.prompts.ask(question), Prompts::Answer::Yes);
        QCOMPARE(fakes.prompts.asked, QList<Prompt>({question, question}));

        fakes.services.trap.run([] { throw RuntimeError(Overflow); });
        QCOMPARE(fakes.prompts.asked.last().text, u"Run-time error '6':\r\n\r\nOverflow"_s);
        QCOMPARE(fakes.program.endCodes, QList<int>({1}));

        fakes.clock.stepMilliseconds = 1000;
        const QDateTime first = fakes.services.clock.now();
        QCOMPARE(first.msecsTo(fakes.services.clock.now()), 1000);
    }
};

QTEST_APPLESS_MAIN(tst_FakeHfm)
#include "tst_FakeHfm.moc"
