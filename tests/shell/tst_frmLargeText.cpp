#include "shell/frmLargeText.h"
#include "support/FakeServices.h"

#include <QScrollBar>
#include <QTest>

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
    }

    void aMillionLinesAreShownAndScrolled()
    {
        FakeServices services;
        LargeTextView view(services.trap);
        view.resize(400, 300);
        view.show();
        view.setText(QStringLiteral("\"a\",\"b\"\r\n").repeated(1'200'000));
        QScrollBar *const bar = view.verticalScrollBar();
        QCOMPARE(bar->maximum() + bar->pageStep(), 1'200'001);
        bar->setValue(bar->maximum());
        QVERIFY(!view.grab().isNull());
    }
};

QTEST_MAIN(tst_frmLargeText)
#include "tst_frmLargeText.moc"
