#include "TestHost.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace hfm::offline::script;

namespace {

const QString tooLong = u"The script runs too long"_s;
const QString noMemory = u"Out of memory"_s;
const QString noStack = u"Out of stack space"_s;

QString errorOf(const QString &script, Limits limits = {})
{
    const QString last = outcomeOf(script, limits).value(0);
    return last.startsWith(u"! "_s) ? last.section(u": "_s, 1) : u"no error: "_s + last;
}

} // namespace

/// What a run may take of the machine, and that nothing in a script gets around it.
class tst_ScriptBounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLoopWithoutAnEndIsEnded_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("Do") << u"Do\nLoop"_s;
        QTest::newRow("Do While") << u"Do While True\nx = 1\nLoop"_s;
        QTest::newRow("Loop Until") << u"Do\nLoop Until False"_s;
        QTest::newRow("While") << u"While 1\nWend"_s;
        QTest::newRow("For with a step of 0") << u"For i = 1 To 2 Step 0\nNext"_s;
        QTest::newRow("For that is set back") << u"For i = 1 To 2\ni = 1\nNext"_s;
        QTest::newRow("For to the end of numbers") << u"For i = 1 To 1e300\nNext"_s;
        QTest::newRow("For that no longer counts") << u"For i = 1e18 To 2e18\nNext"_s;
        QTest::newRow("errors that are passed over")
            << u"On Error Resume Next\nDo\nx = 1 / 0\nLoop"_s;
        QTest::newRow("a condition that fails") << u"On Error Resume Next\nDo While 1 / 0\nLoop"_s;
        QTest::newRow("calls") << u"Function F\nEnd Function\nDo\nF\nLoop"_s;
    }

    void everyLoopWithoutAnEndIsEnded()
    {
        QFETCH(QString, script);
        Limits limits;
        limits.steps = 100'000;
        QCOMPARE(errorOf(script, limits), tooLong);
    }

    void tenMillionStepsAreTheLimit()
    {
        QCOMPARE(Limits().steps, 10'000'000);
        QCOMPARE(errorOf(u"Do\nx = 1\nLoop"_s), tooLong);
    }

    void aLoopOfAMillionTurnsIsWithinTheBounds()
    {
        QCOMPARE(outcomeOf(u"For i = 1 To 1000000\nx = x + i\nNext\nOut.Put x"_s),
                 QStringList{u"500000500000#"_s});
    }

    void aStepIsAStatementATurnOrACall()
    {
        Limits limits;
        limits.steps = 7; // the sub that the test adds is one
        QCOMPARE(errorOf(u"For i = 1 To 2\nx = 1\nNext"_s, limits), u"no error: "_s);
        limits.steps = 6;
        QCOMPARE(errorOf(u"For i = 1 To 2\nx = 1\nNext"_s, limits), tooLong);
    }

    void longExpressionsTakeMoreSteps()
    {
        const QString sum = u"x = 1"_s + QString(u" + 1"_s).repeated(1600);
        Limits limits;
        limits.steps = 90;
        QCOMPARE(errorOf(sum, limits), tooLong);
        limits.steps = 120;
        QCOMPARE(errorOf(sum, limits), u"no error: "_s);
    }

    void whatIsLongTakesStepsByItsLength_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::newRow("joining") << u"y = x & \"a\""_s;
        QTest::newRow("comparing") << u"y = x = z"_s;
        QTest::newRow("searching") << u"y = InStr(x, \"b\")"_s;
        QTest::newRow("searching from the end") << u"y = InStrRev(x, \"b\")"_s;
        QTest::newRow("replacing") << u"y = Replace(x, \"a\", \"b\")"_s;
        QTest::newRow("splitting") << u"y = Split(x, \",\")"_s;
        QTest::newRow("joining elements") << u"y = Join(list, \",\")"_s;
        QTest::newRow("filtering") << u"y = Filter(list, \"b\")"_s;
        QTest::newRow("taking parts") << u"y = Mid(x, 2)"_s;
        QTest::newRow("changing case") << u"y = UCase(x)"_s;
        QTest::newRow("repeating") << u"y = String(100000, \"a\")"_s;
        QTest::newRow("new bounds") << u"ReDim y(100000)"_s;
        QTest::newRow("copying") << u"y = list : y(0) = 1"_s;
        QTest::newRow("reading a number") << u"y = IsNumeric(n)"_s;
    }

    void whatIsLongTakesStepsByItsLength()
    {
        QFETCH(QString, statement);
        const QString before = u"x = String(100000, \"a\")\nz = String(100000, \"a\")\n"
                               "n = String(100000, \"1\")\nReDim list(10000)\n"_s;
        Limits limits;
        limits.steps = 150'000; // what stands before takes most of them
        const QString most = u"\nDo While i < 500\ni = i + 1\n"_s;
        QCOMPARE(errorOf(before + statement, limits), u"no error: "_s);
        QCOMPARE(errorOf(before + most + u"y = 1\nLoop"_s, limits), u"no error: "_s);
        QCOMPARE(errorOf(before + most + statement + u"\nLoop"_s, limits), tooLong);
    }

    void callsAre256DeepAtMost()
    {
        const QString script = u"Sub S(n)\nIf n > 1 Then S n - 1\nEnd Sub\nS %1"_s;
        QCOMPARE(errorOf(script.arg(255)), u"no error: "_s);
        QCOMPARE(errorOf(script.arg(256)), noStack);
    }

    void deepCallsWithinDeepNestingAreBoundedToo()
    {
        QString script = u"Sub S(n)\n"_s;
        for (int i = 0; i < 50; ++i)
            script += u"If n > 0 Then\n"_s;
        script += u"x = "_s + QString(u"(1 + "_s).repeated(25) + u"F(n)"_s + u")"_s.repeated(25);
        script += u"\n"_s + QString(u"End If\n"_s).repeated(50);
        script += u"End Sub\nFunction F(n)\nS n - 1\nEnd Function\nS 250"_s;
        QCOMPARE(errorOf(script), noStack);
    }

    void aFullStackIsNotPassedOver()
    {
        QCOMPARE(errorOf(u"Sub S\nOn Error Resume Next\nS\nEnd Sub\nS"_s), noStack);
    }

    void memoryIsBounded_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("a text that doubles") << u"x = \"a\"\nDo\nx = x & x\nLoop"_s;
        QTest::newRow("a long text") << u"x = Space(100000000)"_s;
        QTest::newRow("a text of blanks") << u"x = String(100000000, \" \")"_s;
        QTest::newRow("a large array") << u"Dim a(5000000)"_s;
        QTest::newRow("the largest array") << u"Dim a(2147483647)"_s;
        QTest::newRow("an array of many dimensions")
            << u"Dim a(65535, 65535, 65535, 65535, 65535)"_s;
        QTest::newRow("an array that is given new bounds") << u"ReDim a(2147483646)"_s;
        QTest::newRow("many arrays")
            << u"Dim a(1000)\nFor i = 0 To 1000\nReDim b(10000)\na(i) = b\nNext"_s;
        QTest::newRow("copies of an array") << u"Dim a(1000)\nReDim b(100000)\n"
                                               "For i = 0 To 1000\nb(0) = i\na(i) = b\nNext"_s;
        QTest::newRow("replacing by more") << u"x = Replace(Space(1000000), \" \", Space(1000))"_s;
        QTest::newRow("joining elements") << u"ReDim a(100000)\nx = Join(a, Space(10000))"_s;
        QTest::newRow("splitting") << u"x = Split(Space(3000000))"_s;
    }

    void memoryIsBounded()
    {
        QFETCH(QString, script);
        QCOMPARE(errorOf(script), noMemory);
    }

    void memoryThatIsNoLongerUsedIsFreeAgain()
    {
        QCOMPARE(outcomeOf(u"For i = 1 To 100\nx = Space(20000000 \\ 100)\nReDim a(30000)\n"
                           "Next\nOut.Put Len(x)"_s),
                 QStringList{u"200000"_s});
    }

    void spentMemoryIsNotPassedOver()
    {
        QCOMPARE(errorOf(u"On Error Resume Next\nx = Space(100000000)\nOut.Put 1"_s), noMemory);
    }

    void manyVariablesInDeepCallsAreMemoryToo()
    {
        QString script = u"Sub S\n"_s;
        for (int i = 0; i < 30000; ++i)
            script += u"Dim v%1\n"_s.arg(i);
        QCOMPARE(errorOf(script + u"S\nEnd Sub\nS"_s), noMemory);
    }

    void arraysInArraysAreGivenBackHoweverDeep()
    {
        Limits limits;
        limits.memory = qint64(1) << 30;
        QCOMPARE(outcomeOf(u"a = Array()\nFor i = 1 To 1000000\na = Array(a)\nNext\n"
                           "b = a\na = 1\nb = 1\nOut.Put \"well\""_s,
                           limits),
                 QStringList{u"\"well\""_s});
    }

    void nestingInTheSourceIsBounded_data()
    {
        QTest::addColumn<QString>("script");
        const auto nested = [](const QString &open, const QString &inside, const QString &close) {
            return open.repeated(5000) + inside + close.repeated(5000);
        };
        QTest::newRow("parentheses")
            << nested(u"x = ("_s.sliced(4), u"1"_s, u")"_s).prepend(u"x ="_s);
        QTest::newRow("signs") << u"x = "_s + u"- "_s.repeated(5000) + u"1"_s;
        QTest::newRow("Not") << u"x = "_s + u"Not "_s.repeated(5000) + u"1"_s;
        QTest::newRow("calls") << nested(u"Len("_s, u"1"_s, u")"_s).prepend(u"x = "_s);
        QTest::newRow("elements") << u"x = a"_s + u"(1)"_s.repeated(5000);
        QTest::newRow("members") << u"x = a"_s + u".b"_s.repeated(5000);
        QTest::newRow("elements that are assigned to")
            << u"a"_s + u"(1)"_s.repeated(5000) + u" = 1"_s;
        QTest::newRow("If") << nested(u"If 1 Then\n"_s, QString(), u"End If\n"_s);
        QTest::newRow("If on one line") << u"If 1 Then "_s.repeated(5000) + u"x = 1"_s;
        QTest::newRow("For") << nested(u"For i = 1 To 2\n"_s, QString(), u"Next\n"_s);
        QTest::newRow("Do") << nested(u"Do\n"_s, QString(), u"Loop\n"_s);
        QTest::newRow("Select") << nested(u"Select Case 1\nCase 1\n"_s, QString(),
                                          u"End Select\n"_s);
    }

    void nestingInTheSourceIsBounded()
    {
        QFETCH(QString, script);
        QCOMPARE(errorOf(script), u"Statements or parentheses nest too deeply"_s);
    }

    void longScriptsAreNoDeepOnes()
    {
        QString script;
        for (int i = 0; i < 20000; ++i)
            script += u"If x = %1 Then\nx = %1\nElseIf x = -1 Then\nEnd If\n"_s.arg(i);
        script += u"If x = 1 Then\n"_s + u"ElseIf x = 2 Then\n"_s.repeated(20000) + u"End If\n"_s;
        script += u"x = \"a\""_s + u" & \"b\""_s.repeated(20000) + u"\nOut.Put Len(x)"_s;
        QCOMPARE(outcomeOf(script), QStringList{u"20001"_s});
    }
};

QTEST_APPLESS_MAIN(tst_ScriptBounds)
#include "tst_ScriptBounds.moc"
