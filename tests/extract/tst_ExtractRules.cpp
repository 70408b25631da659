#include "extract/ExtractRules.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace ExtractRules;

class tst_ExtractRules : public QObject
{
    Q_OBJECT

private:
    const ExtractIndicators mTyped = {u"Up"_s, u"Down"_s};
    const ExtractTexts mTexts = {u"rows"_s, u"header rows"_s};

private Q_SLOTS:
    void commaTakesTheIndicatorsAsTypedWhereIndicatorsAreUsed()
    {
        QCOMPARE(indicatorsFor(u"COMMA"_s, {true, mTyped}), mTyped);
    }

    void commaTakesNoIndicatorsWhereTheyAreNotUsed()
    {
        QCOMPARE(indicatorsFor(u"COMMA"_s, {false, mTyped}), ExtractIndicators());
    }

    void tabTakesDynamicAndStoreWhateverTheIndicatorsSay()
    {
        const ExtractIndicators fixed = {u"Dynamic"_s, u"Store"_s};
        QCOMPARE(indicatorsFor(u"TAB"_s, {true, mTyped}), fixed);
        QCOMPARE(indicatorsFor(u"TAB"_s, {false, mTyped}), fixed);
    }

    void aTagIsComparedInUpperCase()
    {
        QVERIFY(indicatorsFor(u"comma"_s, {}));
        QVERIFY(indicatorsFor(u"Tab"_s, {}));
    }

    void anyOtherTagIsAnError()
    {
        QVERIFY(!indicatorsFor(u"SEMICOLON"_s, {}));
        QVERIFY(!indicatorsFor(u""_s, {}));
        QVERIFY(!indicatorsFor(u" COMMA"_s, {}));
        const Prompt prompt = unknownDelimiter();
        QCOMPARE(prompt.title, u"Delimeter Option Error"_s);
        QCOMPARE(prompt.text, u"Unhandled error encountered while setting the Delimeter Option."_s);
        QVERIFY(prompt.icon == Prompt::Icon::Critical);
        QVERIFY(prompt.buttons == Prompt::Buttons::Ok);
    }

    void theHeaderRowBoxSwitchesBetweenTheTwoTexts()
    {
        QCOMPARE(textForHeaderRow(mTexts, true), u"header rows"_s);
        QCOMPARE(textForHeaderRow(mTexts, false), u"rows"_s);
    }

    void aBuiltExtractIsShownWithoutItsHeaderWhateverTheBoxSays()
    {
        QCOMPARE(textWhenBuilt(mTexts, true), u"rows"_s);
        QCOMPARE(textWhenBuilt(mTexts, false), u"rows"_s);
    }

    void anExtractWithoutRowsShowsOnlyTheHeaderLineWhereOneIsWanted()
    {
        QCOMPARE(textWhenBuilt({u""_s, u"header"_s}, true), u"header"_s);
        QCOMPARE(textWhenBuilt({u""_s, u"header"_s}, false), u""_s);
    }

    void theWindowNamesTheApplicationAndTheDimension()
    {
        QCOMPARE(applicationPanel(u"Comma"_s), u"Application: Comma"_s);
        QCOMPARE(dimensionCaption(u"Account"_s), u"Account Dimension"_s);
    }
};

QTEST_APPLESS_MAIN(tst_ExtractRules)
#include "tst_ExtractRules.moc"
