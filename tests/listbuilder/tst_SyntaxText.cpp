#include "listbuilder/SyntaxText.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_SyntaxText : public QObject
{
    Q_OBJECT

private:
    static QString ends() { return u"\u2028\u2029\uFDD0\uFDD1"_s; }

    /// Puts a text into a document and takes it out again.
    static QString thereAndBack(const QString &text)
    {
        SyntaxText document;
        return document.fromDocument(document.toDocument(text), "\r\n"_L1);
    }

private Q_SLOTS:
    void aTextWithoutOddCharactersIsItsOwn()
    {
        SyntaxText document;
        QCOMPARE(document.toDocument(u"\tA\u00A0é中\r\n"_s), u"\tA\u00A0é中\r\n"_s);
        QCOMPARE(document.toDocument({}), QString());
    }

    void noEndOfALabelGetsIntoTheDocument()
    {
        SyntaxText document;
        const QString raw = document.toDocument(u"A"_s + ends() + u"B"_s);
        QCOMPARE(raw.size(), 6);
        for (const QChar end : ends())
            QVERIFY(!raw.contains(end));
    }

    void everyCharacterComesBack()
    {
        QString text;
        for (char16_t code = 0x20; code < 0xD800; ++code)
            text.append(QChar(code));
        text += u"\uE000 \U0001F600 "_s + ends() + ends();
        QCOMPARE(thereAndBack(text), text);
    }

    void aCharacterThatWouldStandForAnotherComesBack()
    {
        const QString text = u"\uFDD2\uFDD3\u2028\uFDD4\uFDD1\uFDEB\u2029\uFDD0"_s;
        QCOMPARE(thereAndBack(text), text);
    }

    void withoutEnoughStandInsTheFirstCharactersComeBack()
    {
        QString text;
        for (char16_t code = 0xFDD2; code <= 0xFDEE; ++code)
            text.append(QChar(code));
        QCOMPARE(thereAndBack(text + ends()), text + u"\u2028\r\n\uFDD0\uFDD1"_s);
    }

    void theDocumentsOwnLineEndsBecomeThatLineEnd()
    {
        const SyntaxText document;
        QCOMPARE(document.fromDocument(u"a\u2029b\u2028c\u2029"_s, "\r\n"_L1),
                 u"a\r\nb\r\nc\r\n"_s);
        QCOMPARE(document.fromDocument(u"a\u2029b\u2028c"_s, "\n"_L1), u"a\nb\nc"_s);
    }
};

QTEST_APPLESS_MAIN(tst_SyntaxText)
#include "tst_SyntaxText.moc"
