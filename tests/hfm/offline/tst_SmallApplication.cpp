#include "ReadText.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using hfm::MemberId;

namespace {

const char smallApplication[] =
    "!FILE_FORMAT=11.12\r\n"
    "!VERSION=11.1.5033\r\n"
    "!CUSTOM_ORDER=Movement;Product\r\n"
    "!APPLICATION_SETTINGS\r\n"
    "DefaultCurrency=EUR\r\n"
    "!CURRENCIES\r\n"
    "'Label;Scale;TranslationOperator;DisplayInICT;Descriptions\r\n"
    "EUR;0;M;Y;English=Euro;French=Euro\r\n"
    "USD;0;;Y;English=US dollar;French=Dollar US\r\n"
    "!MEMBERS=Entity\r\n"
    "'Label;DefCurrency;AllowAdjs;IsICP;AllowAdjFromChildren;SecurityClass;UserDefined1;"
    "UserDefined2;UserDefined3;HoldingCompany;SecurityAsPartner;DefaultParent;Descriptions\r\n"
    "[None];;Y;N;Y;;;;;;;DefaultParent=#root\r\n"
    "GROUP;EUR;Y;N;Y;SC_GRP;;;;HOLDCO;;DefaultParent=#root;English=Group\r\n"
    "LEGAL;EUR;Y;N;Y;SC_GRP;;;;;;DefaultParent=#root;English=Legal view\r\n"
    "HOLDCO;EUR;Y;Y;N;SC_GRP;FR;;;;SC_ICP;DefaultParent=GROUP;English=Holding company\r\n"
    "US01;USD;Y;Y;N;SC_US;US;;;;SC_ICP;DefaultParent=GROUP;English=US unit, East;"
    "French=Unit\xC3\xA9 US\r\n"
    "!HIERARCHIES=Entity\r\n"
    ";[None]\r\n"
    ";GROUP\r\n"
    "GROUP;HOLDCO\r\n"
    "GROUP;US01\r\n"
    ";LEGAL\r\n"
    "LEGAL;US01\r\n"
    "!MEMBERS=Movement\r\n"
    "'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;"
    "UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions\r\n"
    "[None];N;N;N;;;;;;DefaultParent=#root\r\n"
    "CLO;Y;N;N;;;;;1;DefaultParent=#root;English=Closing balance\r\n"
    "OPE;N;N;N;;;;;1;DefaultParent=CLO;English=Opening balance\r\n"
    "!HIERARCHIES=Movement\r\n"
    ";[None];1\r\n"
    ";CLO;0\r\n"
    "CLO;OPE;1\r\n"
    "!MEMBERS=Account\r\n"
    "BS;GROUPLABEL;N;N;N;;;;0;N;Y;Y;;;;;;;N;;;DefaultParent=#root;English=Balance sheet\r\n"
    "IC_REC;ASSET;N;Y;R;IC_PLUG;CLO;[None];0;N;Y;Y;BS;;;;SC_FIN;[ICP Entities];Y;;1;"
    "DefaultParent=BS;English=Intercompany receivable\r\n"
    "!HIERARCHIES=Account\r\n"
    ";BS\r\n"
    "BS;IC_REC\r\n";

} // namespace

/// The whole of a small application as HFM extracts it, asked for through the session.
class tst_SmallApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entitiesStandWhereTheHierarchyPutsThem()
    {
        const auto entity = sessionOn(smallApplication)->GetMetadata()->GetEntityDimension();
        QCOMPARE(treeOf(*entity), u"[None]\nGROUP\n  HOLDCO\n  US01\nLEGAL\n  US01\n"_s);
        QCOMPARE(entity->EnumAllMemberLabels(),
                 QStringList({u"[None]"_s, u"GROUP"_s, u"LEGAL"_s, u"HOLDCO"_s, u"US01"_s}));
        QCOMPARE(entity->GetDefaultParentLabel(entity->GetMemberId(u"us01"_s)), u"GROUP"_s);
    }

    void descriptionsComeInBothLanguages()
    {
        const auto metadata = sessionOn(smallApplication)->GetMetadata();
        QCOMPARE(metadata->GetLanguages(), QStringList({u"English"_s, u"French"_s}));
        const auto entity = metadata->GetEntityDimension();
        const MemberId unit = entity->GetMemberId(u"US01"_s);
        QCOMPARE(entity->GetMemberDescription(unit, 0), u"US unit, East"_s);
        QCOMPARE(entity->GetMemberDescription(unit, 1), u"Unité US"_s);
        QCOMPARE(entity->GetMemberDescription(entity->GetMemberId(u"GROUP"_s), 1), QString());
    }

    void customDimensionsAreThoseOfTheCustomOrder()
    {
        const auto metadata = sessionOn(smallApplication)->GetMetadata();
        const auto movement = metadata->GetCustom1Dimension();
        QCOMPARE(movement->GetDimensionName(), u"Custom1"_s);
        QCOMPARE(treeOf(*movement), u"[None]\nCLO\n  OPE\nEUR\nUSD\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom2Dimension()), u"[None]\nEUR\nUSD\n"_s);
        QCOMPARE(treeOf(*metadata->GetCustom3Dimension()), u"[None]\n"_s);
    }

    void accountsHaveTheirAttributes()
    {
        const auto metadata = sessionOn(smallApplication)->GetMetadata();
        const auto account = metadata->GetAccountDimension();
        const auto view = account->accountAttributes();
        const MemberId receivable = account->GetMemberId(u"IC_REC"_s);
        QCOMPARE(view->GetAccountType(receivable), 2);
        QCOMPARE(view->GetAccountIsICP(receivable), 1);
        QVERIFY(view->GetAccountIsConsolidated(receivable));
        QVERIFY(!view->GetAccountIsCalculated(receivable));
        QVERIFY(!view->GetAccountIsLID(receivable));
        QCOMPARE(view->GetAccountUserDefined1(receivable), u"BS"_s);
        QVERIFY(view->GetAccountCustom2AggEnabled(receivable));
        QVERIFY(!view->GetAccountCustom3AggEnabled(receivable));
        const auto movement = metadata->GetCustom1Dimension();
        const auto product = metadata->GetCustom2Dimension();
        QCOMPARE(movement->GetMemberLabel(view->GetAccountTopCustom1(receivable)), u"CLO"_s);
        QCOMPARE(product->GetMemberLabel(view->GetAccountTopCustom2(receivable)), u"[None]"_s);
        QCOMPARE(view->GetAccountTopCustom3(receivable), -1);
        QCOMPARE(view->GetAccountTopCustom1(account->GetMemberId(u"BS"_s)), -1);
    }

    void entitiesHaveTheirAttributes()
    {
        const auto session = sessionOn(smallApplication);
        const auto entity = session->GetMetadata()->GetEntityDimension();
        const auto value = session->GetMetadata()->GetValueDimension();
        const auto view = entity->entityAttributes();
        const MemberId unit = entity->GetMemberId(u"US01"_s);
        QCOMPARE(value->GetMemberLabel(view->GetEntityCurrencyId(unit)), u"USD"_s);
        QCOMPARE(value->GetMemberLabel(view->GetEntityCurrencyId(0)), u"[None]"_s);
        QVERIFY(view->GetEntityAllowAdjs(unit));
        QVERIFY(view->GetEntityIsICP(unit));
        QVERIFY(!view->GetEntityAllowChildAdjs(unit));
        QCOMPARE(view->GetEntityUserDefined1(unit), u"US"_s);
        QCOMPARE(session->GetSecurity()->GetSecurityClassName(view->GetEntitySecurityClassId(unit)),
                 u"SC_US"_s);
        QCOMPARE(view->GetEntitySecurityClassId(0), hfm::noClass);
    }

    void nothingIsWrongInItWhetherASecurityFileListsItsClassesOrThereIsNone()
    {
        const QByteArray security = "!SECURITY_CLASSES\nSC_GRP\nSC_US\nsc_fin\n[Default]\n";
        QCOMPARE(warningsOf(*readTexts({smallApplication, {}, security})), QStringList());
        QCOMPARE(warningsOf(*readText(smallApplication)), QStringList());
    }

    void aClassThatItsSecurityFileDoesNotListIsAWarning()
    {
        const QByteArray security = "!SECURITY_CLASSES\nSC_GRP\nsc_fin\n[Default]\n";
        QCOMPARE(warningsOf(*readTexts({smallApplication, {}, security})),
                 QStringList{u"Test.app:16: The security class 'SC_US' is nowhere defined."_s});
    }
};

QTEST_APPLESS_MAIN(tst_SmallApplication)

#include "tst_SmallApplication.moc"
