#include "shell/TextBoundaries.h"

#include <QTest>

using TextBoundaries::Range;

namespace {

const QString eAcute = QStringLiteral("e\u0301");
const QString smile = QStringLiteral("\U0001F600");

/// The starts of all characters, walked forward from the beginning.
QList<qsizetype> walkForward(const QString &text)
{
    QList<qsizetype> starts;
    for (qsizetype at = 0; at < text.size(); at = TextBoundaries::nextCharacter(text, at))
        starts.append(at);
    return starts;
}

/// The same, walked backward from the end.
QList<qsizetype> walkBackward(const QString &text)
{
    QList<qsizetype> starts;
    for (qsizetype at = text.size(); at > 0;) {
        at = TextBoundaries::previousCharacter(text, at);
        starts.prepend(at);
    }
    return starts;
}

/// The words of a text, each in brackets, walked by nextWord.
QString wordsOf(const QString &text)
{
    QString result;
    for (qsizetype at = 0; at < text.size(); at = TextBoundaries::nextWord(text, at)) {
        const Range word = TextBoundaries::wordAt(text, at);
        result +=
            QLatin1Char('[') + text.sliced(word.start, word.end - word.start) + QLatin1Char(']');
    }
    return result;
}

} // namespace

class tst_TextBoundaries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void characters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<qsizetype>>("starts");
        using Starts = QList<qsizetype>;
        QTest::newRow("empty") << QString() << Starts{};
        QTest::newRow("plain") << QStringLiteral("abc") << Starts{0, 1, 2};
        QTest::newRow("accented letters") << QStringLiteral("é€z") << Starts{0, 1, 2};
        QTest::newRow("a combining mark") << eAcute + QLatin1Char('x') << Starts{0, 2};
        QTest::newRow("marks in a row") << QStringLiteral("a\u0300\u0301\u0302b") << Starts{0, 4};
        QTest::newRow("a surrogate pair") << smile + smile << Starts{0, 2};
        QTest::newRow("a lone high surrogate")
            << QString(QChar(0xd83d)) + QStringLiteral("ab") << Starts{0, 1, 2};
        QTest::newRow("a lone low surrogate")
            << QStringLiteral("a") + QChar(0xde00) << Starts{0, 1};
        QTest::newRow("CR LF") << QStringLiteral("a\r\nb") << Starts{0, 1, 3};
        QTest::newRow("LF CR") << QStringLiteral("a\n\rb") << Starts{0, 1, 2, 3};
        QTest::newRow("a mark behind a line end")
            << QStringLiteral("\r\n\u0301b") << Starts{0, 2, 3};
        QTest::newRow("a flag") << QStringLiteral("\U0001F1E9\U0001F1EAx") << Starts{0, 4};
        QTest::newRow("hangul jamo") << QStringLiteral("\u1112\u1161\u11abx") << Starts{0, 3};
    }

    void characters()
    {
        QFETCH(QString, text);
        QFETCH(QList<qsizetype>, starts);
        QCOMPARE(walkForward(text), starts);
        QCOMPARE(walkBackward(text), starts);
        for (qsizetype at = 0; at < text.size(); ++at) {
            const auto next = std::upper_bound(starts.begin(), starts.end(), at);
            const qsizetype start = *std::prev(next);
            const qsizetype end = next == starts.end() ? text.size() : *next;
            QCOMPARE(TextBoundaries::characterStart(text, at), start);
            QCOMPARE(TextBoundaries::characterEnd(text, at), at == start ? start : end);
        }
    }

    void aCharacterIsFoundInTheMiddleOfALongText()
    {
        const QString text =
            QString(5000, QLatin1Char('x')) + eAcute + smile + QString(5000, QLatin1Char('y'));
        QCOMPARE(TextBoundaries::characterStart(text, 5001), 5000);
        QCOMPARE(TextBoundaries::nextCharacter(text, 5000), 5002);
        QCOMPARE(TextBoundaries::nextCharacter(text, 5002), 5004);
        QCOMPARE(TextBoundaries::previousCharacter(text, 5004), 5002);
        QCOMPARE(TextBoundaries::previousCharacter(text, 5002), 5000);
    }

    void anEndlessChainOfMarksIsCutButNoPairIs()
    {
        // U+1D165 is a combining mark beyond the 16-bit characters.
        const QString text = QLatin1Char('x') + QStringLiteral("\U0001D165").repeated(1000);
        for (const QList<qsizetype> &starts : {walkForward(text), walkBackward(text)}) {
            QCOMPARE(starts.first(), 0);
            QVERIFY(starts.size() > 1);
            for (const qsizetype start : starts)
                QVERIFY(start == 0 || start % 2 == 1);
        }
    }

    void positionsOutsideTheTextStandForItsEnds()
    {
        const QString text = QStringLiteral("ab c");
        QCOMPARE(TextBoundaries::characterStart(text, -3), 0);
        QCOMPARE(TextBoundaries::characterStart(text, 30), 4);
        QCOMPARE(TextBoundaries::characterEnd(text, 30), 4);
        QCOMPARE(TextBoundaries::nextCharacter(text, -3), 1);
        QCOMPARE(TextBoundaries::nextCharacter(text, 30), 4);
        QCOMPARE(TextBoundaries::previousCharacter(text, 0), 0);
        QCOMPARE(TextBoundaries::nextWord(text, 30), 4);
        QCOMPARE(TextBoundaries::previousWord(text, 30), 3);
        QCOMPARE(TextBoundaries::previousWord(text, -3), 0);
        QCOMPARE(TextBoundaries::wordAt(text, 4), (Range{4, 4}));
        QCOMPARE(TextBoundaries::wordAt(QString(), 0), (Range{0, 0}));
    }

    void words_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, const QString &text, const QString &words) {
            QTest::newRow(name) << text << words;
        };
        row("an extract row", QStringLiteral("\"A_1\",\"North 2\""),
            QStringLiteral("[\"][A_1][\",\"][North][2][\"]"));
        row("a line end is a stop of its own", QStringLiteral("a b\r\n c"),
            QStringLiteral("[a][b][\r\n][c]"));
        row("empty lines", QStringLiteral("a\r\n\r\nb"), QStringLiteral("[a][\r\n][\r\n][b]"));
        row("tabs and blanks", QStringLiteral("a\t \tb"), QStringLiteral("[a][b]"));
        row("accents", QStringLiteral("Zürich nord"), QStringLiteral("[Zürich][nord]"));
        row("combining marks stay with their letters", eAcute + eAcute + QStringLiteral("-x"),
            QLatin1Char('[') + eAcute + eAcute + QStringLiteral("][-][x]"));
        row("a mark on a sign belongs to the sign", QStringLiteral("a-\u0301b"),
            QStringLiteral("[a][-\u0301][b]"));
        row("letters beyond 16 bits", QStringLiteral("\U00010400\U00010401 x"),
            QStringLiteral("[\U00010400\U00010401][x]"));
        row("emoji are signs", QStringLiteral("ab\U0001F600cd"),
            QStringLiteral("[ab][\U0001F600][cd]"));
    }

    void words()
    {
        QFETCH(QString, text);
        QFETCH(QString, words);
        QCOMPARE(wordsOf(text), words);
    }

    void anyPlaceInAWordGivesTheWord()
    {
        const QString text = QStringLiteral("ab  Zu\u0308rich,");
        for (qsizetype at = 4; at < 11; ++at)
            QCOMPARE(TextBoundaries::wordAt(text, at), (Range{4, 11}));
        QCOMPARE(TextBoundaries::wordAt(text, 2), (Range{2, 4}));
        QCOMPARE(TextBoundaries::wordAt(text, 11), (Range{11, 12}));
    }

    void aPlaceInALineEndGivesTheWholeLineEnd()
    {
        const QString text = QStringLiteral("a\r\nb");
        QCOMPARE(TextBoundaries::wordAt(text, 1), (Range{1, 3}));
        QCOMPARE(TextBoundaries::wordAt(text, 2), (Range{1, 3}));
    }

    void previousWordsAreStartsOfWordsAndLineEnds()
    {
        const QString text = QStringLiteral("  ab, \r\ncd ");
        QList<qsizetype> stops;
        for (qsizetype at = text.size(); at > 0;) {
            at = TextBoundaries::previousWord(text, at);
            stops.append(at);
        }
        QCOMPARE(stops, (QList<qsizetype>{8, 6, 4, 2, 0}));
    }

    void fromWithinAWordThePreviousWordIsItsStart()
    {
        QCOMPARE(TextBoundaries::previousWord(QStringLiteral("ab cdef"), 5), 3);
    }
};

QTEST_APPLESS_MAIN(tst_TextBoundaries)
#include "tst_TextBoundaries.moc"
