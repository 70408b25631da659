#include "runtime/DesktopLauncher.h"
#include "runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

/// "53 File not found: x", or "none".
QString errorOfRunning(const QString &commandLine)
{
    try {
        DesktopLauncher().run(commandLine);
    } catch (const RuntimeError &error) {
        return QStringLiteral("%1 %2").arg(error.number()).arg(error.description());
    }
    return QStringLiteral("none");
}

} // namespace

/// The same of opening a file.
QString errorOfOpening(const QString &file)
{
    try {
        DesktopLauncher().open(file);
    } catch (const RuntimeError &error) {
        return QStringLiteral("%1 %2").arg(error.number()).arg(error.description());
    }
    return QStringLiteral("none");
}

/// The PATH is one folder of small scripts that note what they were started with.
class tst_DesktopLauncher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid());
        QVERIFY(QDir(mFolder->path()).mkdir(QStringLiteral("bin")));
        QVERIFY(QDir(mFolder->path()).mkdir(QStringLiteral("program files")));
        mPath = qgetenv("PATH");
        qputenv("PATH", at("bin").toLocal8Bit());
    }
    void cleanup() { qputenv("PATH", mPath); }

    void aProgramOnThePathGetsThePath()
    {
        addProgram("hh.exe");
        addFile("program files/System11TessalyHelp.chm");
        DesktopLauncher().run(helpCommand());
        QTRY_COMPARE(started("hh.exe"), "[" + help().toUtf8() + "]");
        QVERIFY(!QFile::exists(at("xdg-open.started")));
    }

    void theProgramIsStartedWhetherTheFileIsThereOrNot()
    {
        addProgram("hh.exe");
        DesktopLauncher().run(helpCommand());
        QTRY_COMPARE(started("hh.exe"), "[" + help().toUtf8() + "]");
    }

    void withoutTheProgramTheDesktopShowsTheFile()
    {
        addProgram("xdg-open");
        addFile("program files/System11TessalyHelp.chm");
        DesktopLauncher().run(helpCommand());
        QTRY_COMPARE(started("xdg-open"), "[" + help().toUtf8() + "]");
    }

    void withoutAViewerForTheFileTheBrowserShowsTheWebPage()
    {
        addProgram("xdg-open");
        addProgram("xdg-mime", "#!/bin/sh\n/bin/true\n");
        addFile("program files/System11TessalyHelp.chm");
        addFile("program files/index.html");
        DesktopLauncher(at("program files/index.html")).run(helpCommand());
        QTRY_COMPARE(started("xdg-open"), "[" + at("program files/index.html").toUtf8() + "]");
    }

    void aViewerForTheFileIsPreferredToTheWebPage()
    {
        addProgram("xdg-open");
        addProgram("xdg-mime", "#!/bin/sh\n"
                               "[ \"$*\" = 'query default application/vnd.ms-htmlhelp' ] &&"
                               " echo viewer.desktop\n");
        addFile("program files/System11TessalyHelp.chm");
        addFile("program files/index.html");
        DesktopLauncher(at("program files/index.html")).run(helpCommand());
        QTRY_COMPARE(started("xdg-open"), "[" + help().toUtf8() + "]");
    }

    void aWebPageThatIsNotThereIsNotShown()
    {
        addProgram("xdg-open");
        addProgram("xdg-mime", "#!/bin/sh\n/bin/true\n");
        addFile("program files/System11TessalyHelp.chm");
        DesktopLauncher(at("program files/index.html")).run(helpCommand());
        QTRY_COMPARE(started("xdg-open"), "[" + help().toUtf8() + "]");
    }

    void signsOfAShellMeanNothing()
    {
        addProgram("hh.exe");
        const QString path = at("a  b ; $(c) 'd' \"e\" & *.chm ");
        DesktopLauncher().run(QStringLiteral("hh.exe ") + path);
        QTRY_COMPARE(started("hh.exe"), "[" + path.toUtf8() + "]");
    }

    void aProgramAloneIsStartedWithoutArguments()
    {
        addProgram("hh.exe");
        DesktopLauncher().run(QStringLiteral("hh.exe"));
        QTRY_COMPARE(started("hh.exe"), QByteArray("[]"));
    }

    void aMissingFileIsNamed()
    {
        addProgram("xdg-open");
        QCOMPARE(errorOfRunning(helpCommand()), QStringLiteral("53 File not found: ") + help());
        QVERIFY(!QFile::exists(at("xdg-open.started")));
    }

    void aFolderIsNoFile()
    {
        addProgram("xdg-open");
        QCOMPARE(errorOfRunning(QStringLiteral("hh.exe ") + at("program files")),
                 QStringLiteral("53 File not found: ") + at("program files"));
    }

    void missingViewersAreNamed()
    {
        addFile("program files/System11TessalyHelp.chm");
        QCOMPARE(errorOfRunning(helpCommand()),
                 QStringLiteral("53 File not found: hh.exe, xdg-open"));
    }

    void aMissingProgramWithoutAFileIsNamed()
    {
        addProgram("xdg-open");
        QCOMPARE(errorOfRunning(QStringLiteral("hh.exe")),
                 QStringLiteral("53 File not found: hh.exe"));
    }

    void nothingCannotBeStarted()
    {
        QCOMPARE(errorOfRunning(QString()), QStringLiteral("53 File not found: "));
    }

    void aProgramThatDoesNotStartIsAsGoodAsMissing()
    {
        addProgram("hh.exe", "\x7F"
                             "ELF and nothing more");
        addProgram("xdg-open");
        addFile("program files/System11TessalyHelp.chm");
        DesktopLauncher().run(helpCommand());
        QTRY_COMPARE(started("xdg-open"), "[" + help().toUtf8() + "]");
    }

    void aFileThatIsNoProgramIsNotStarted()
    {
        addFile("bin/hh.exe");
        QCOMPARE(errorOfRunning(QStringLiteral("hh.exe")),
                 QStringLiteral("53 File not found: hh.exe"));
    }

    void aFileIsOpenedByTheDesktop()
    {
        addProgram("xdg-open");
        addFile("a  b\\c.xlsx");
        DesktopLauncher().open(at("a  b\\c.xlsx"));
        QTRY_COMPARE(started("xdg-open"), "[" + at("a  b\\c.xlsx").toUtf8() + "]");
    }

    void theDesktopIsAskedWhetherItKnowsAProgramForTheFile()
    {
        addProgram("xdg-open");
        addProgram("xdg-mime", "#!/bin/sh\necho \"$@\" >'" + at("asked").toLocal8Bit() +
                                   "'\necho calc.desktop\n");
        addFile("b.xlsx");
        DesktopLauncher().open(at("b.xlsx"));
        QTRY_COMPARE(started("xdg-open"), "[" + at("b.xlsx").toUtf8() + "]");
        QFile asked(at("asked"));
        QVERIFY(asked.open(QIODevice::ReadOnly));
        QCOMPARE(asked.readAll(),
                 QByteArray("query default application/"
                            "vnd.openxmlformats-officedocument.spreadsheetml.sheet\n"));
    }

    void aDesktopWithoutAProgramForTheFileIsToldAtOnce()
    {
        addProgram("xdg-open");
        addProgram("xdg-mime", "#!/bin/sh\n");
        addFile("b.xlsx");
        QCOMPARE(errorOfOpening(at("b.xlsx")),
                 QStringLiteral("53 File not found: a program for application/"
                                "vnd.openxmlformats-officedocument.spreadsheetml.sheet"));
        QVERIFY(!QFile::exists(at("xdg-open.started")));
    }

    void withoutADesktopAFileIsNotOpened()
    {
        addFile("b.xlsx");
        QCOMPARE(errorOfOpening(at("b.xlsx")), QStringLiteral("53 File not found: xdg-open"));
    }

    void aFileThatIsNotThereIsNotOpened()
    {
        addProgram("xdg-open");
        QCOMPARE(errorOfOpening(at("gone.xlsx")),
                 QStringLiteral("53 File not found: ") + at("gone.xlsx"));
        QVERIFY(!QFile::exists(at("xdg-open.started")));
    }

private:
    QString at(const char *name) const
    {
        return mFolder->path() + QLatin1Char('/') + QString::fromLatin1(name);
    }
    QString help() const { return at("program files/System11TessalyHelp.chm"); }
    QString helpCommand() const
    {
        return QStringLiteral("hh.exe ") + at("program files") +
               QStringLiteral("\\System11TessalyHelp.chm");
    }

    void addFile(const char *name, const QByteArray &bytes = "file")
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    /// Without `bytes` the program writes its arguments, each in brackets, and nothing is seen of
    /// them before they are all there.
    void addProgram(const char *name, QByteArray bytes = {})
    {
        const QByteArray note = at(name).toLocal8Bit() + ".started";
        if (bytes.isEmpty())
            bytes = "#!/bin/sh\nprintf '[%s]' \"$@\" >'" + note + ".part'\n/bin/mv '" + note +
                    ".part' '" + note + "'\n";
        const QByteArray program = QByteArray("bin/") + name;
        addFile(program.constData(), bytes);
        QVERIFY(QFile::setPermissions(at(program.constData()),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    QByteArray started(const char *name) const
    {
        QFile file(at(name) + QStringLiteral(".started"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> mFolder;
    QByteArray mPath;
};

QTEST_GUILESS_MAIN(tst_DesktopLauncher)
#include "tst_DesktopLauncher.moc"
