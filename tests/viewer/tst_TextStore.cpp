#include "viewer/TextStore.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_TextStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsOfAnySizeStayAsTheyAre()
    {
        TextStore store;
        QList<std::pair<QString, StoredText>> stored;
        for (const qsizetype size : {0, 1, 255, 511, 512, 513, 3, 100'000, 0, 2'000'000, 2, 7})
            for (const char16_t character : {u'a', u'\u00FF', u'\u0100', u'\u4E2D'}) {
                const QString text(size, character);
                stored.append({text, store.append(text)});
            }
        for (const auto &[text, place] : stored)
            QCOMPARE(place.toString(), text);
    }

    void aWideCharacterAnywhereMakesATextWide()
    {
        TextStore store;
        for (qsizetype position = 0; position < 11; ++position) {
            QString text(11, u'a');
            QVERIFY(!store.append(text).isWide);
            text[position] = u'\u0100';
            const StoredText stored = store.append(text);
            QVERIFY(stored.isWide);
            QCOMPARE(stored.toString(), text);
        }
    }

    void aTextKnowsWhatItBegins_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("longer");
        QTest::addColumn<bool>("begins");
        QTest::newRow("narrow") << u"Caf\u00E9"_s << u"Caf\u00E9 - x"_s << true;
        QTest::newRow("other") << u"Caf\u00E9"_s << u"Cafe - x"_s << false;
        QTest::newRow("wide") << u"\u4E2D"_s << u"\u4E2D - x"_s << true;
        QTest::newRow("wide, other") << u"\u4E2D"_s << u"-\u4E2D"_s << false;
        QTest::newRow("before wide") << u"A"_s << u"A\u4E2D"_s << true;
        QTest::newRow("longer") << u"AB"_s << u"A"_s << false;
        QTest::newRow("empty") << QString() << u"A"_s << true;
        QTest::newRow("both empty") << QString() << QString() << true;
    }
    void aTextKnowsWhatItBegins()
    {
        QFETCH(QString, text);
        QFETCH(QString, longer);
        TextStore store;
        QTEST(store.append(text).isPrefixOf(longer), "begins");
    }

    void aPartOfATextIsThatPart()
    {
        TextStore store;
        QCOMPARE(store.append(u"abcdef"_s).mid(2, 3).toString(), u"cde"_s);
        QCOMPARE(store.append(u"ab\u4E2Ddef"_s).mid(2, 3).toString(), u"\u4E2Dde"_s);
        QCOMPARE(store.append(u"abc"_s).mid(3, 0).toString(), QString());
    }
};

QTEST_APPLESS_MAIN(tst_TextStore)
#include "tst_TextStore.moc"
