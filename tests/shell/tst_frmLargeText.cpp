#include "ShownLargeText.h"

#include <QLineEdit>
#include <QScrollBar>

namespace {

/// The number of pixels that are painted in exactly this colour.
int pixelsOf(const QImage &image, const QColor &colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).rgb() == colour.rgb() ? 1 : 0;
    }
    return count;
}

} // namespace

class tst_frmLargeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsReadAsItWasSet()
    {
        FakeServices services;
        LargeTextView view(services.trap);
        const QString text = QStringLiteral("a\r\nb\nc\rd");
        view.setText(text);
        QCOMPARE(view.text(), text);
        QCOMPARE(view.property("text").toString(), text);
        QCOMPARE(view.text().constData(), text.constData());
        view.clear();
        QCOMPARE(view.text(), QString());
        QVERIFY(view.setProperty("text", text));
        QCOMPARE(view.text(), text);
    }

    void aNewTextIsShownFromItsBeginningWithNothingSelected()
    {
        Shown shown(manyLines(1000));
        shown.view.selectAll();
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(shown.view.verticalScrollBar()->value() > 0);
        shown.view.setText(manyLines(500));
        QCOMPARE(shown.view.verticalScrollBar()->value(), 0);
        QCOMPARE(shown.caret(), 0);
        QVERIFY(!shown.view.caret().hasSelection());
    }

    void aMillionLinesAreShownAndScrolled()
    {
        constexpr int rows = 1'200'000;
        Shown shown(manyLines(rows));
        QScrollBar *const bar = shown.view.verticalScrollBar();
        QCOMPARE(bar->maximum() + bar->pageStep(), rows + 1);
        QVERIFY(!shown.view.grab().isNull());
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(bar->value(), bar->maximum());
        QCOMPARE(shown.caret(), 9 * rows);
        shown.key(Qt::Key_Up);
        shown.key(Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("\"a\",\"b\""));
        bar->setValue(600'000);
        QCOMPARE(shown.view.characterAt(QPoint(0, 0)), 9 * 600'000);
        shown.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(bar->value(), 0);
    }

    void oneHugeLineIsShownAndScrolled()
    {
        constexpr qsizetype length = 10'000'000;
        Shown shown(QString(length, QLatin1Char('x')) + QStringLiteral("end"));
        QScrollBar *const bar = shown.view.horizontalScrollBar();
        QVERIFY(bar->maximum() > length);
        shown.key(Qt::Key_End);
        QCOMPARE(shown.caret(), length + 3);
        QCOMPARE(bar->value(), bar->maximum());
        QVERIFY(!shown.view.grab().isNull());
        shown.key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(shown.view.selectedText(), QStringLiteral("d"));
        bar->setValue(bar->maximum() / 2);
        const qsizetype middle = shown.view.characterAt(QPoint(100, 10));
        QVERIFY(qAbs(middle - length / 2) < 1000);
        QVERIFY(shown.view.characterRect(middle).contains(QPoint(100, shown.placeOf(0).y())));
    }

    void aLineWiderThanAScrollBarCanCountIsReachedToItsEnd()
    {
        Shown shown{QString()};
        QFont font = shown.view.font();
        font.setPixelSize(1000);
        shown.view.setFont(font);
        shown.view.setText(QString(4'000'000, QLatin1Char('W')) + QStringLiteral("end"));
        shown.key(Qt::Key_End);
        const QRect last = shown.view.characterRect(shown.caret() - 1);
        QVERIFY(last.right() > 0 && last.right() < shown.view.viewport()->width());
        shown.key(Qt::Key_Home);
        QCOMPARE(shown.view.horizontalScrollBar()->value(), 0);
        shown.view.reveal(2'000'000);
        QVERIFY(shown.view.characterRect(2'000'000).intersects(shown.view.viewport()->rect()));
    }

    void everyCharacterOfALongLineIsWhereItIsSaidToBe()
    {
        const QString text = QStringLiteral("a\tb\u6f22 ").repeated(1500);
        Shown shown(text);
        for (qsizetype position = 0; position < text.size(); position += 7) {
            shown.view.reveal(position);
            const QPoint place = shown.placeOf(position);
            QVERIFY(shown.view.viewport()->rect().contains(place));
            QCOMPARE(shown.view.characterAt(place), position);
        }
    }

    void theScrollBarReachesWhatIsWiderThanTheLongestLine()
    {
        const QString narrow(100, QLatin1Char('.'));
        const QString wide(90, QLatin1Char('W'));
        Shown shown(narrow + QStringLiteral("\r\n").repeated(500) + wide);
        const int before = shown.view.horizontalScrollBar()->maximum();
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(shown.view.horizontalScrollBar()->maximum() > before);
        QVERIFY(shown.view.viewport()->rect().contains(shown.placeOf(shown.caret())));
    }

    void aTextThatFitsNeedsNoScrollBars()
    {
        Shown shown(QStringLiteral("abc\r\ndef"));
        QCOMPARE(shown.view.verticalScrollBar()->maximum(), 0);
        QCOMPARE(shown.view.horizontalScrollBar()->maximum(), 0);
    }

    void anotherFontIsMeasuredAnew()
    {
        Shown shown(manyLines(1000));
        const int rows = shown.view.verticalScrollBar()->pageStep();
        QFont font = shown.view.font();
        font.setPointSize(3 * font.pointSize());
        shown.view.setFont(font);
        QVERIFY(shown.view.verticalScrollBar()->pageStep() < rows);
        QCOMPARE(shown.view.characterAt(shown.placeOf(9)), 9);
    }

    void thePaletteColoursTextBackgroundAndSelection()
    {
        Shown shown(QStringLiteral("MMMMMM\r\nMMMMMM"));
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(10, 20, 30));
        palette.setColor(QPalette::Text, QColor(250, 240, 230));
        palette.setColor(QPalette::Active, QPalette::Highlight, QColor(0, 90, 0));
        palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(90, 0, 0));
        shown.view.setPalette(palette);
        const auto picture = [&] { return shown.view.viewport()->grab().toImage(); };
        QVERIFY(pixelsOf(picture(), QColor(10, 20, 30)) > 10'000);
        QVERIFY(pixelsOf(picture(), QColor(250, 240, 230)) > 10);
        QCOMPARE(pixelsOf(picture(), QColor(0, 90, 0)), 0);
        shown.view.selectAll();
        QVERIFY(pixelsOf(picture(), QColor(0, 90, 0)) > 100);
        // While one types what to find, the selection is still the active one.
        shown.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(pixelsOf(picture(), QColor(0, 90, 0)) > 100);
        QLineEdit other;
        other.show();
        other.activateWindow();
        other.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!shown.view.isAncestorOf(QApplication::focusWidget()));
        QVERIFY(pixelsOf(picture(), QColor(90, 0, 0)) > 100);
        QCOMPARE(pixelsOf(picture(), QColor(0, 90, 0)), 0);
    }

    void theCaretIsShownWithTheFocusOnly()
    {
        Shown shown{QString()};
        const QColor text = shown.view.palette().color(QPalette::Text);
        const auto pixels = [&] { return pixelsOf(shown.view.viewport()->grab().toImage(), text); };
        shown.key(Qt::Key_Left);
        shown.view.select(0, 0);
        QVERIFY(pixels() > 5);
        shown.view.clearFocus();
        QCOMPARE(pixels(), 0);
    }

    void aSelectedLineEndIsSeen()
    {
        Shown shown(QStringLiteral("\r\n\r\n"));
        QPalette palette;
        palette.setColor(QPalette::Highlight, QColor(0, 90, 0));
        shown.view.setPalette(palette);
        shown.view.select(0, 2);
        QVERIFY(pixelsOf(shown.view.viewport()->grab().toImage(), QColor(0, 90, 0)) > 5);
    }
};

QTEST_MAIN(tst_frmLargeText)
#include "tst_frmLargeText.moc"
