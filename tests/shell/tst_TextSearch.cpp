#include "shell/TextSearch.h"

#include <QTest>

using TextBoundaries::Range;
using TextSearch::Outcome;

class tst_TextSearch : public QObject
{
    Q_OBJECT

    const QString mText = QStringLiteral("Sales, net sales\r\nCost of SALES");

private Q_SLOTS:
    void forwardGivesTheFirstFromThere()
    {
        const auto result = TextSearch::forward(mText, QStringLiteral("sales"), 1);
        QCOMPARE(result.outcome, Outcome::Found);
        QCOMPARE(result.match, (Range{11, 16}));
        QCOMPARE(TextSearch::forward(mText, QStringLiteral("sales"), 0).match, (Range{0, 5}));
        QCOMPARE(TextSearch::forward(mText, QStringLiteral("sales"), 11).match, (Range{11, 16}));
    }

    void forwardGoesOnAtTheBeginning()
    {
        const auto result = TextSearch::forward(mText, QStringLiteral("net"), 8);
        QCOMPARE(result.outcome, Outcome::FoundBeyondEnd);
        QCOMPARE(result.match, (Range{7, 10}));
        QCOMPARE(TextSearch::forward(mText, QStringLiteral("sales"), mText.size()).match,
                 (Range{0, 5}));
    }

    void backwardGivesTheLastThatEndsThere()
    {
        const auto result = TextSearch::backward(mText, QStringLiteral("sales"), mText.size() - 1);
        QCOMPARE(result.outcome, Outcome::Found);
        QCOMPARE(result.match, (Range{11, 16}));
        QCOMPARE(TextSearch::backward(mText, QStringLiteral("sales"), 16).match, (Range{11, 16}));
        QCOMPARE(TextSearch::backward(mText, QStringLiteral("sales"), 15).match, (Range{0, 5}));
    }

    void backwardGoesOnAtTheEnd()
    {
        const auto result = TextSearch::backward(mText, QStringLiteral("sales"), 4);
        QCOMPARE(result.outcome, Outcome::FoundBeyondBeginning);
        QCOMPARE(result.match, (Range{26, 31}));
        QCOMPARE(TextSearch::backward(mText, QStringLiteral("sales"), 0).match, (Range{26, 31}));
    }

    void wordsAroundTheStartingPlaceAreFoundTheLongWayRound()
    {
        const QString text = QStringLiteral("xxabcdxx");
        QCOMPARE(TextSearch::forward(text, QStringLiteral("abcd"), 3).match, (Range{2, 6}));
        QCOMPARE(TextSearch::backward(text, QStringLiteral("abcd"), 5).match, (Range{2, 6}));
    }

    void everyStartingPlaceFindsTheOnlyOne()
    {
        const QString text = QStringLiteral("abcabd");
        for (qsizetype at = 0; at <= text.size(); ++at) {
            QCOMPARE(TextSearch::forward(text, QStringLiteral("abd"), at).match, (Range{3, 6}));
            QCOMPARE(TextSearch::backward(text, QStringLiteral("abd"), at).match, (Range{3, 6}));
        }
    }

    void caseIsHeededOnlyWhenAskedFor()
    {
        const auto exact =
            TextSearch::forward(mText, QStringLiteral("SALES"), 0, Qt::CaseSensitive);
        QCOMPARE(exact.match, (Range{26, 31}));
        const auto accented =
            TextSearch::forward(QStringLiteral("Zürich"), QStringLiteral("ZÜR"), 0);
        QCOMPARE(accented.match, (Range{0, 3}));
        QCOMPARE(
            TextSearch::backward(mText, QStringLiteral("sALES"), 31, Qt::CaseSensitive).outcome,
            Outcome::NotFound);
    }

    void lineEndsAreFoundAsTheyStand()
    {
        QCOMPARE(TextSearch::forward(mText, QStringLiteral("sales\r\ncost"), 0).match,
                 (Range{11, 22}));
        QCOMPARE(TextSearch::forward(mText, QStringLiteral("sales\ncost"), 0).outcome,
                 Outcome::NotFound);
    }

    void whatIsNotThereIsNotFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QTest::newRow("no such words") << mText << QStringLiteral("profit");
        QTest::newRow("no words") << mText << QString();
        QTest::newRow("no text") << QString() << QStringLiteral("a");
        QTest::newRow("neither") << QString() << QString();
        QTest::newRow("longer than the text") << QStringLiteral("ab") << QStringLiteral("abc");
    }

    void whatIsNotThereIsNotFound()
    {
        QFETCH(QString, text);
        QFETCH(QString, words);
        for (qsizetype at = 0; at <= text.size(); ++at) {
            QCOMPARE(TextSearch::forward(text, words, at).outcome, Outcome::NotFound);
            QCOMPARE(TextSearch::backward(text, words, at).outcome, Outcome::NotFound);
            QCOMPARE(TextSearch::forward(text, words, at).match, Range{});
        }
    }

    void theUserIsToldWhatBecameOfIt()
    {
        QCOMPARE(TextSearch::outcomeText(Outcome::Found), QString());
        QCOMPARE(TextSearch::outcomeText(Outcome::NotFound), QStringLiteral("Not found"));
        QCOMPARE(TextSearch::outcomeText(Outcome::FoundBeyondEnd),
                 QStringLiteral("Continued from the beginning"));
        QCOMPARE(TextSearch::outcomeText(Outcome::FoundBeyondBeginning),
                 QStringLiteral("Continued from the end"));
    }
};

QTEST_APPLESS_MAIN(tst_TextSearch)
#include "tst_TextSearch.moc"
