#include "runtime/CodePage.h"

#include <QTest>

#include <vector>

namespace {

QByteArray allBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(char(byte));
    return bytes;
}

/// The bytes 80 to 9F, from the published table of the code page.
const QString upperControls = QString::fromUtf16(
    u"\u20AC\x0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x008D\u017D"
    u"\x008F\x0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x009D"
    u"\u017E\u0178");

} // namespace

class tst_CodePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteIsOneCharacter()
    {
        const QString text = CodePage::decode(allBytes());
        QCOMPARE(text.size(), 256);
        QCOMPARE(text.first(128), QString::fromLatin1(allBytes().first(128)));
        QCOMPARE(text.mid(128, 32), upperControls);
        QCOMPARE(text.last(96), QString::fromLatin1(allBytes().last(96)));
    }

    void everyByteComesBackAsItWas()
    {
        QCOMPARE(CodePage::encode(CodePage::decode(allBytes())), allBytes());
    }

    void everyOtherCharacterIsAQuestionMark()
    {
        const QString known = CodePage::decode(allBytes());
        for (int unit = 0; unit <= 0xFFFF; ++unit) {
            const QString text = QChar(unit);
            if (!known.contains(QChar(unit)))
                QCOMPARE(CodePage::encode(text), QByteArray("?"));
        }
    }

    void aCharacterOutsideTheBasicPlaneIsOneQuestionMark()
    {
        QCOMPARE(CodePage::encode(u"a\U0001F600b\U00020000"), QByteArray("a?b?"));
    }

    void aLoneSurrogateIsOneQuestionMark()
    {
        const QString text = QString(QChar(0xD83D)) + QLatin1Char('a') + QChar(0xDE00) +
                             QChar(0xDE00) + QChar(0xD83D) + QChar(0xD83D);
        QCOMPARE(CodePage::encode(text), QByteArray("?a????"));
    }

    void nothingIsReadBehindTheText()
    {
        const std::vector<char16_t> half(1, 0xD83D);
        QCOMPARE(CodePage::encode(QStringView(half.data(), 1)), QByteArray("?"));
        const std::vector<char> bytes(33, '\x80');
        QCOMPARE(CodePage::decode(QByteArrayView(bytes.data(), 33)), QString(33, QChar(0x20AC)));
    }

    void nothingIsNothing()
    {
        QCOMPARE(CodePage::encode(QString()), QByteArray());
        QCOMPARE(CodePage::decode(QByteArray()), QString());
    }

    void lineEndsStayAsTheyAre()
    {
        QCOMPARE(CodePage::encode(u"a\r\nb\rc\n"), QByteArray("a\r\nb\rc\n"));
        QCOMPARE(CodePage::decode("a\r\nb\rc\n"), QStringLiteral("a\r\nb\rc\n"));
    }

    void itDoesNotMatterWhereInALongTextACharacterStands()
    {
        const QString pair = QString::fromUtf16(u"\U0001F600");
        for (qsizetype position = 0; position <= 200; ++position) {
            const QString before(position, QLatin1Char('x'));
            const QString after(200 - position, QLatin1Char('y'));
            const QByteArray bytesBefore(position, 'x');
            const QByteArray bytesAfter(200 - position, 'y');
            QCOMPARE(CodePage::encode(before + QChar(0x20AC) + after),
                     bytesBefore + '\x80' + bytesAfter);
            QCOMPARE(CodePage::encode(before + QChar(0xE9) + after),
                     bytesBefore + '\xE9' + bytesAfter);
            QCOMPARE(CodePage::encode(before + pair + after), bytesBefore + '?' + bytesAfter);
            QCOMPARE(CodePage::decode(bytesBefore + '\x80' + bytesAfter),
                     before + QChar(0x20AC) + after);
        }
    }
};

QTEST_APPLESS_MAIN(tst_CodePage)
#include "tst_CodePage.moc"
