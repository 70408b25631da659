#include "WorkbookTour.h"

#include "Hands.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTest>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const QString noteName = u"opened"_s;

QDir desktopOf(const Journey &journey)
{
    return QDir(journey.folder() + u"/settings"_s);
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

void addProgram(const QString &path, const QByteArray &script)
{
    writeFile(path, "#!/bin/sh\n" + script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void answer(QWidget &box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(static_cast<QMessageBox &>(box).button(button), Qt::LeftButton);
}

QString readNote(const Journey &journey)
{
    QFile note(desktopOf(journey).filePath(noteName));
    return note.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(note.readAll()) : QString();
}

void keep(Journey &journey, const QString &name)
{
    const QDir folder(journey.folder());
    const QStringList workbooks = folder.entryList({u"Tessaly Export *.xlsx"_s});
    journey.check(workbooks.size() == 1, u"there is one new workbook"_s);
    QFile::remove(folder.filePath(name));
    journey.check(QFile::rename(folder.filePath(workbooks.first()), folder.filePath(name)),
                  u"the workbook can be kept"_s);
    QFile::remove(desktopOf(journey).filePath(noteName));
}

} // namespace

void WorkbookTour::prepareDesktop(const Journey &journey)
{
    const QDir desktop = desktopOf(journey);
    desktop.mkpath(u"."_s);
    const QByteArray folder = QFile::encodeName(journey.folder());
    writeFile(desktop.filePath(u"user-dirs.dirs"_s), "XDG_DOCUMENTS_DIR=\"" + folder + "\"\n");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(desktop.path()));

    desktop.mkpath(u"bin"_s);
    const QByteArray note = QFile::encodeName(desktop.filePath(noteName));
    addProgram(desktop.filePath(u"bin/xdg-open"_s), "printf '%s' \"$1\" >'" + note +
                                                        ".part' && mv '" + note + ".part' '" +
                                                        note + "'\n");
    addProgram(desktop.filePath(u"bin/xdg-mime"_s), "echo spreadsheet.desktop\n");
    qputenv("PATH", QFile::encodeName(desktop.filePath(u"bin"_s)) + ':' + qgetenv("PATH"));
    const QStringList left = QDir(journey.folder()).entryList({u"Tessaly Export *.xlsx"_s});
    for (const QString &workbook : left)
        QFile::remove(journey.folder() + u'/' + workbook);
    QFile::remove(desktop.filePath(noteName));
}

void WorkbookTour::sendToExcel(Journey &journey, const QString &window, const char *button,
                               bool isAsked, const QString &name)
{
    journey.on(window, u"Send it to the spreadsheet"_s,
               [button](QWidget &shown) { Hands::click(shown, button); });
    if (isAsked)
        journey.on(u"QMessageBox"_s, u"Want the attributes, too"_s, [&](QWidget &box) {
            journey.check(box.windowTitle() == u"Print Attributes"_s, u"it asks for them"_s);
            answer(box, QMessageBox::Yes);
        });
    journey.on(u"QMessageBox"_s, u"Read that the export is complete"_s, [&](QWidget &box) {
        journey.check(box.windowTitle() == u"Excel Export"_s, u"the export is complete"_s);
        answer(box, QMessageBox::Ok);
    });
    journey.when(
        window, u"See the workbook opened"_s,
        [&journey] {
            return readNote(journey).startsWith(journey.folder() + u"/Tessaly Export "_s);
        },
        [&journey, name](QWidget &) { keep(journey, name + u".xlsx"_s); });
}
