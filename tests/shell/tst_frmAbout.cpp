#include "shell/frmAbout.h"

#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class tst_frmAbout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleVersionDescriptionAndDisclaimerAreShown()
    {
        const frmAbout about(nullptr);
        const auto text = [&](const char *label) {
            const auto *found = about.findChild<QLabel *>(QLatin1StringView(label));
            return found ? found->text() : QStringLiteral("no such label");
        };
        QCOMPARE(about.objectName(), QStringLiteral("frmAbout"));
        QCOMPARE(about.windowTitle(), QStringLiteral("About Tessaly"));
        QCOMPARE(text("lblTitle"), QStringLiteral("Tessaly"));
        QCOMPARE(text("lblVersion"), QStringLiteral("Version 11.1.2"));
        QCOMPARE(text("lblDescription"),
                 QStringLiteral("This utility was built to supply various graphical tools to speed "
                                "development and maintenance of HFM applications.  No actual "
                                "changes to the HFM application are made directly by the "
                                "utility."));
        QCOMPARE(text("lblWarning_0"),
                 QStringLiteral("This utility application is unsupported by Oracle."));
        QCOMPARE(text("lblWarning_1"),
                 QStringLiteral("For questions and feedback see the project's issue tracker."));
        QCOMPARE(text("lblWarning_2"),
                 QStringLiteral("if you wish to provide feedback, ask for enhancements and/or "
                                "fixes. "));
        const auto *logo = about.findChild<QLabel *>(QStringLiteral("picLogo"));
        QVERIFY(logo);
        QCOMPARE(!logo->pixmap().isNull(), QImageReader::supportedImageFormats().contains("svg"));
    }

    void itIsModalOverItsOwner()
    {
        QWidget owner;
        frmAbout about(&owner);
        QTimer::singleShot(0, &about, [&] {
            QVERIFY(about.isModal());
            about.reject();
        });
        about.exec();
        QCOMPARE(about.parentWidget(), &owner);
    }

    void okClosesIt()
    {
        frmAbout about(nullptr);
        about.show();
        auto *ok = about.findChild<QPushButton *>(QStringLiteral("cmdOK"));
        QVERIFY(ok);
        QCOMPARE(ok->text(), QStringLiteral("OK"));
        QVERIFY(ok->isDefault());
        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(!about.isVisible());
    }
};

QTEST_MAIN(tst_frmAbout)
#include "tst_frmAbout.moc"
