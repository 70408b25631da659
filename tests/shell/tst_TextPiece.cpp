#include "shell/TextPiece.h"

#include <QTest>

class tst_TextPiece : public QObject
{
    Q_OBJECT

    const QString mText = QStringLiteral("ab, cde\r\nfg hij\r\nkl");

private Q_SLOTS:
    void aPieceOfTheTextIsHandedOnAsItStands()
    {
        const TextPiece piece(mText, {4, 11});
        QCOMPARE(piece.formats(), QStringList{QStringLiteral("text/plain")});
        QVERIFY(piece.hasText());
        QCOMPARE(piece.text(), QStringLiteral("cde\r\nfg"));
        QCOMPARE(piece.data(QStringLiteral("text/plain")), QByteArray("cde\r\nfg"));
        QVERIFY(piece.data(QStringLiteral("text/html")).isEmpty());
    }

    void aShortPieceKeepsNothingElseOfTheText()
    {
        const QString text = mText.repeated(3);
        const TextPiece piece(text, {4, 11});
        QVERIFY(text.isDetached());
        QCOMPARE(piece.text(), QStringLiteral("cde\r\nfg"));
    }

    void aLongPieceSharesTheText()
    {
        const QString text = mText.repeated(10'000);
        const TextPiece piece(text, {4, text.size()});
        QVERIFY(!text.isDetached());
        QCOMPARE(piece.text(), text.sliced(4));
    }

    void aPieceThatIsTheWholeTextIsTheTextItself()
    {
        const QString text = mText.repeated(3);
        const TextPiece piece(text, {0, text.size()});
        QCOMPARE(piece.text().constData(), text.constData());
    }
};

QTEST_APPLESS_MAIN(tst_TextPiece)
#include "tst_TextPiece.moc"
