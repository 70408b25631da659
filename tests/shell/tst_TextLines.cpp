#include "shell/TextLines.h"

#include <QTest>

namespace {

/// The lines of a text, without their line ends, as a list.
QStringList linesOf(const QString &text)
{
    const TextLines lines(text);
    QStringList result;
    for (qsizetype line = 0; line < lines.count(); ++line)
        result.append(lines.line(line).toString());
    return result;
}

/// The same, found the plain way.
QStringList plainLinesOf(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.split(QLatin1Char('\n'));
}

} // namespace

class tst_TextLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const char *text, const QStringList &lines) {
            QTest::newRow(name) << QString::fromLatin1(text) << lines;
        };
        const auto l = [](std::initializer_list<const char *> texts) {
            QStringList list;
            for (const char *text : texts)
                list.append(QString::fromLatin1(text));
            return list;
        };
        row("an empty text is one empty line", "", l({""}));
        row("a text without a line end", "abc", l({"abc"}));
        row("CR LF", "a\r\nb\r\n", l({"a", "b", ""}));
        row("LF", "a\nb\n", l({"a", "b", ""}));
        row("lone CR", "a\rb\r", l({"a", "b", ""}));
        row("a lone CR at the end", "a\r\nb\r", l({"a", "b", ""}));
        row("a text without a final line end", "a\r\nb", l({"a", "b"}));
        row("LF CR are two line ends", "a\n\rb", l({"a", "", "b"}));
        row("CR CR LF are two line ends", "a\r\r\nb", l({"a", "", "b"}));
        row("empty lines", "\r\n\r\n", l({"", "", ""}));
        row("a mix", "a\rb\nc\r\nd", l({"a", "b", "c", "d"}));
    }

    void lines()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, lines);
        QCOMPARE(linesOf(text), lines);
    }

    void everyMixOfLineEndsIsCut()
    {
        const QString alphabet = QStringLiteral("x\r\n");
        constexpr int longest = 8;
        QStringList texts = {QString()};
        for (qsizetype next = 0; next < texts.size(); ++next) {
            const QString text = texts.at(next);
            QCOMPARE(linesOf(text), plainLinesOf(text));
            for (const QChar character : alphabet) {
                if (text.size() < longest)
                    texts.append(text + character);
            }
        }
        QCOMPARE(texts.size(), 9841); // the sum of 3^n for n from 0 to 8
    }

    void aLineEndIsFoundWhereverItStands()
    {
        for (const auto *lineEnd : {u"\r\n", u"\n", u"\r"}) {
            for (int before = 0; before < 100; ++before) {
                for (const int after : {0, 1, 31, 32, 33, 64}) {
                    const QString first(before, QLatin1Char('a'));
                    const QString second(after, QLatin1Char('b'));
                    QCOMPARE(linesOf(first + QString::fromUtf16(lineEnd) + second),
                             QStringList({first, second}));
                }
            }
        }
    }

    void otherSeparatorsOfUnicodeEndNoLine()
    {
        const QString text = QStringLiteral("a\u2028b\u2029c\u0085d\ve\ff");
        QCOMPARE(linesOf(text), QStringList{text});
    }

    void aCharacterWhoseHalfLooksLikeALineEndEndsNoLine()
    {
        const QString text = QStringLiteral("\u0A0D\u0D0A\u0A0A\u0D0D and more than one block");
        QCOMPARE(linesOf(text), QStringList{text});
    }

    void startAndEndOfALineLeaveItsLineEndOut()
    {
        const TextLines lines(QStringLiteral("ab\r\ncde\n\rf"));
        QCOMPARE(lines.count(), 4);
        QCOMPARE(lines.start(0), 0);
        QCOMPARE(lines.end(0), 2);
        QCOMPARE(lines.start(1), 4);
        QCOMPARE(lines.end(1), 7);
        QCOMPARE(lines.start(2), 8);
        QCOMPARE(lines.end(2), 8);
        QCOMPARE(lines.start(3), 9);
        QCOMPARE(lines.end(3), 10);
    }

    void aLineEndBelongsToTheLineThatItEnds()
    {
        const TextLines lines(QStringLiteral("ab\r\nc\n"));
        const QList<int> expected = {0, 0, 0, 0, 1, 1, 2};
        for (int position = 0; position < expected.size(); ++position)
            QCOMPARE(lines.lineOf(position), expected[position]);
    }

    void positionsOutsideTheTextAreInItsFirstOrLastLine()
    {
        const TextLines lines(QStringLiteral("ab\r\nc"));
        QCOMPARE(lines.lineOf(-1), 0);
        QCOMPARE(lines.lineOf(1000), 1);
        QCOMPARE(TextLines().lineOf(7), 0);
    }

    void theLongestLineIsTheFirstOfThoseWithMostCharacters()
    {
        QCOMPARE(TextLines().longestLine(), 0);
        QCOMPARE(TextLines(QStringLiteral("a\r\nbcd\r\nefg\r\nh")).longestLine(), 1);
        QCOMPARE(TextLines(QStringLiteral("a\nb\nlast")).longestLine(), 2);
    }

    void theTextIsSharedAndNotCopied()
    {
        const QString text = QStringLiteral("a\r\nb").repeated(2);
        const TextLines lines(text);
        QCOMPARE(lines.text().constData(), text.constData());
    }

    void everyPositionOfAMillionLinesIsFound()
    {
        constexpr qsizetype rows = 1'200'000;
        const TextLines lines(QStringLiteral("\"a\",\"b\"\r\n").repeated(rows));
        QCOMPARE(lines.count(), rows + 1);
        for (qsizetype line = 0; line < rows; line += 997) {
            QCOMPARE(lines.start(line), line * 9);
            QCOMPARE(lines.end(line), line * 9 + 7);
            QCOMPARE(lines.lineOf(line * 9 + 8), line);
        }
        QCOMPARE(lines.start(rows), lines.length());
        QCOMPARE(lines.end(rows), lines.length());
    }
};

QTEST_APPLESS_MAIN(tst_TextLines)
#include "tst_TextLines.moc"
