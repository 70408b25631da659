#include "SaveTour.h"

#include "Hands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

using namespace Qt::StringLiterals;

void saveAs(Journey &journey, const QString &name)
{
    journey.on(u"frmDrvDirFil"_s, u"Name the file"_s, [&journey, name](QWidget &dialog) {
        const QString file = QDir(journey.folder()).filePath(name);
        Hands::type(dialog, "txtFileName",
                    QDir(QCoreApplication::applicationDirPath()).relativeFilePath(file));
        journey.picture(dialog, u"save-"_s + QFileInfo(name).suffix());
        Hands::click(dialog, "cmdSave");
    });
    journey.on(u"QMessageBox"_s, u"Read that it was saved"_s, [&journey](QWidget &box) {
        journey.check(box.windowTitle() == "File Saved"_L1, u"the file was saved"_s);
        static_cast<QMessageBox &>(box).accept();
    });
}
