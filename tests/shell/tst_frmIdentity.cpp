#include "shell/frmAbout.h"
#include "shell/frmIdentity.h"
#include "shell/frmSplash.h"
#include "support/FakeServices.h"

#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QTest>

class tst_frmIdentity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Qt looks for its plugins when the first picture is read, so this comes first.
    void withoutQtsSvgPluginTheWindowsStandWithoutAPicture()
    {
        QCoreApplication::setLibraryPaths({});
        QVERIFY(!QImageReader::supportedImageFormats().contains("svg"));
        QVERIFY(frmIdentity::icon().pixmap(32, 32).isNull());

        FakeServices fakes;
        frmSplash splash(fakes.services);
        splash.show();
        QVERIFY(QTest::qWaitForWindowExposed(&splash));
        frmAbout about(nullptr);
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
    }

    void thePackagesIconIsTheWindows()
    {
        QFile own(QStringLiteral(":/shell/images/tessaly.svg"));
        QFile packaged(QStringLiteral(TESSALY_SAMPLES "/../packaging/tessaly.svg"));
        QVERIFY(own.open(QIODevice::ReadOnly));
        QVERIFY(packaged.open(QIODevice::ReadOnly));
        QCOMPARE(packaged.readAll(), own.readAll());
    }
};

QTEST_MAIN(tst_frmIdentity)
#include "tst_frmIdentity.moc"
