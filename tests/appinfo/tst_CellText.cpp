#include "appinfo/CellText.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_CellText : public QObject
{
    Q_OBJECT

    static QByteArray cell(const QString &text)
    {
        QByteArray utf8(CellText::mostBytes, Qt::Uninitialized);
        const CellText::Written written = CellText::write(text, utf8.data());
        utf8.truncate(written.end - utf8.data());
        return written.isWhole ? utf8 : utf8 + " cut";
    }

private Q_SLOTS:
    void aTextBecomesUtf8_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, const QString &text, const QByteArray &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("empty", {}, "");
        row("plain", u"=SUM(A1) & <b> \"x\""_s, "=SUM(A1) & <b> \"x\"");
        row("two bytes", u"ÄÖ߿"_s, "ÄÖ߿");
        row("three bytes", u"€ \uFFFD"_s, "€ \xEF\xBF\xBD");
        row("four bytes", u"𝄞"_s, "𝄞");
        row("tab and line feed", u"\ta\nb"_s, "\ta\nb");
        row("carriage return", u"a\r\n"_s, "a_x000D_\n");
        row("control characters", u"\u0001\u001F\u007F"_s, "_x0001__x001F_\x7F");
        row("NUL", QString(QChar::Null), "_x0000_");
        row("no characters", u"\uFFFE\uFFFF"_s, "_xFFFE__xFFFF_");
        row("high surrogate alone", QString(QChar(0xD834)) + u'a', "_xD834_a");
        row("high surrogate at the end", u'a' + QString(QChar(0xD834)), "a_xD834_");
        row("low surrogate alone", QString(QChar(0xDD1E)), "_xDD1E_");
        row("surrogates the wrong way round", QString(QChar(0xDD1E)) + QChar(0xD834),
            "_xDD1E__xD834_");
        row("looks like an escape", u"a_x0041_b"_s, "a_x005F_x0041_b");
        row("looks like one in small letters", u"_xabcd_"_s, "_x005F_xabcd_");
        row("looks like an escaped escape", u"_x005F_x0041_"_s, "_x005F_x005F_x005F_x0041_");
        row("an escape would end what looks like one", u"_x0041\u0001"_s, "_x005F_x0041_x0001_");
        row("so would a carriage return", u"_x0041\r"_s, "_x005F_x0041_x000D_");
        row("so would half a pair", u"_x0041"_s + QChar(0xD834), "_x005F_x0041_xD834_");
        row("so would the other half", u"_x0041"_s + QChar(0xDD1E) + u'a', "_x005F_x0041_xDD1E_a");
        row("so would no character", u"_x0041\uFFFE"_s, "_x005F_x0041_xFFFE_");
        row("a whole pair would not", u"_x0041𝄞"_s, "_x0041𝄞");
        row("nor would a tab", u"_x0041\t_x0041"_s, "_x0041\t_x0041");
        row("no escape", u"_x004_ _X0041_ _x0041 x0041_ _x00g1_ __"_s,
            "_x004_ _X0041_ _x0041 x0041_ _x00g1_ __");
    }
    void aTextBecomesUtf8()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, expected);
        QCOMPARE(cell(text), expected);
    }

    void theLongestTextIsWhole() { QCOMPARE(cell(QString(32'767, u'a')), QByteArray(32'767, 'a')); }

    void aLongerTextIsCutAtTheLimit()
    {
        QCOMPARE(cell(QString(32'768, u'a')), QByteArray(32'767, 'a') + " cut");
        QCOMPARE(cell(QString(1'000'000, u'€')), QByteArray("€").repeated(32'767) + " cut");
    }

    void aPairOfSurrogatesIsNeverCutThrough()
    {
        QCOMPARE(cell(QString(32'766, u'a') + u"𝄞"_s), QByteArray(32'766, 'a') + " cut");
        QCOMPARE(cell(QString(32'765, u'a') + u"𝄞"_s), QByteArray(32'765, 'a') + "𝄞");
    }

    void anEscapeCountsInFullAndIsNeverCutThrough()
    {
        QCOMPARE(cell(QString(32'760, u'a') + u'\r'), QByteArray(32'760, 'a') + "_x000D_");
        QCOMPARE(cell(QString(32'761, u'a') + u'\r'), QByteArray(32'761, 'a') + " cut");
        QCOMPARE(cell(QString(40'000, u'\r')).size(), 32'767 / 7 * 7 + 4);
    }
};

QTEST_APPLESS_MAIN(tst_CellText)
#include "tst_CellText.moc"
