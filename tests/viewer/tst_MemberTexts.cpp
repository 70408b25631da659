#include "runtime/RuntimeError.h"
#include "support/FakeHfm.h"
#include "viewer/MemberTexts.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_MemberTexts : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeHfm> mHfm;
    modGlobal mGlobal;

    QString text(hfm::MemberId member, const MemberTextOptions &options = {})
    {
        return MemberTexts(mGlobal, options).GetMemberNodeText(member);
    }

private Q_SLOTS:
    void init()
    {
        mHfm = std::make_unique<FakeHfm>();
        mGlobal = {};
        mGlobal.gSession = mHfm->openSession();
        mGlobal.gMetadata = mGlobal.gSession->GetMetadata();
        mGlobal.gDimension = mGlobal.gMetadata->GetCustom1Dimension();
        mGlobal.gDimensionName = u"CUSTOM1"_s;
        mHfm->application().custom(1).setMembers(u"A|English|Deutsch\nB"_s);
    }

    void shownAttributesStandInParentheses()
    {
        QCOMPARE(text(0), u"A - English (UD1=, UD2=, UD3=, Security=[Default])"_s);
    }

    void hiddenAttributesLeaveLabelAndDescription()
    {
        QCOMPARE(text(0, {.showAttributes = false}), u"A - English"_s);
    }

    void anEmptyDescriptionLeavesNothingBehindTheHyphen()
    {
        QCOMPARE(text(1, {.showAttributes = false}), u"B - "_s);
        QVERIFY(text(1).startsWith(u"B -  (UD1="_s));
    }

    void theDescriptionIsInTheChosenLanguage()
    {
        mGlobal.gLanguageIndex = 1;
        QCOMPARE(text(0, {.showAttributes = false}), u"A - Deutsch"_s);
        mGlobal.gLanguageIndex = 2;
        QCOMPARE(text(0, {.showAttributes = false}), u"A - "_s);
    }

    void expandedAttributesAreAskedFor()
    {
        mGlobal.gDimension = mGlobal.gMetadata->GetAccountDimension();
        mGlobal.gDimensionName = u"ACCOUNT"_s;
        mHfm->application().account().setMembers(u"A"_s);
        QVERIFY(!text(0).contains(u"DecPlaces="_s));
        QVERIFY(text(0, {.expandedAttributes = true}).contains(u", DecPlaces=0, "_s));
    }

    void anEntityThatFailsTheFilterHasNoTextWhateverTheOption()
    {
        mGlobal.gDimension = mGlobal.gMetadata->GetEntityDimension();
        mGlobal.gDimensionName = u"ENTITY"_s;
        mHfm->application().value().setMembers(u"EUR"_s);
        mHfm->application().entity().setMembers(u"Group"_s);
        mHfm->application().entity().entity(u"Group"_s).currency = 0;
        const EntityFilter other{true, u"USD"_s, {}};
        const EntityFilter same{true, u"eur"_s, {}};
        QCOMPARE(text(0, {.filter = other}), QString());
        QCOMPARE(text(0, {.showAttributes = false, .filter = other}), QString());
        QCOMPARE(text(0, {.showAttributes = false, .filter = same}), u"Group - "_s);
    }

    void aDimensionThatCannotBeViewedHasNoTexts()
    {
        mGlobal.gDimensionName = u"SCENARIO"_s;
        QCOMPARE(text(0), QString());
        QCOMPARE(text(0, {.showAttributes = false}), QString());
    }

    void withoutADimensionAnObjectIsNotSet()
    {
        mGlobal.gDimension = nullptr;
        try {
            text(0);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 91);
        }
    }

    void eachTextCostsOneLabelAndOneDescription()
    {
        mHfm->calls().clear();
        text(0);
        QCOMPARE(mHfm->calls().count("GetMemberLabel"_L1), 1);
        QCOMPARE(mHfm->calls().count("GetMemberDescription"_L1), 1);
    }
};

QTEST_APPLESS_MAIN(tst_MemberTexts)
#include "tst_MemberTexts.moc"
