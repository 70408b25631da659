#pragma once

#include "appinfo/frmApplicationInfo.h"
#include "extract/frmExtract.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "shell/frmMain.h"
#include "shell/WindowInstance.h"
#include "support/FakeServices.h"
#include "viewer/frmMetadataViewer.h"

#include <QMap>
#include <QTemporaryDir>

/// The program as main.cpp puts it together, over the fakes and a folder of its own, and a user's
/// hands on it. A control that is not there is no failure of the hands where the program is ending:
/// then the user has nothing to take hold of.
class WholeProgram
{
public:
    WholeProgram();
    ~WholeProgram();
    Q_DISABLE_COPY_MOVE(WholeProgram)

    FakeServices fakes;
    modGlobal global;

    FakeCalls &calls() { return fakes.hfm.calls(); }

    // What a user does.

    void start();
    void click(const char *name);
    void trigger(const char *action);
    /// Chooses the entry of that text; in a list without it the user finds nothing to choose.
    void choose(const char *comboBox, const QString &entry);
    void chooseRow(const char *list, int row);
    void showTab(const char *tabs, int index);
    void type(const char *lineEdit, const QString &text);
    /// Puts lines into a list box, as nobody but a test does.
    void fill(const char *listBox, const QStringList &lines);
    void close(const char *window);
    /// Lets everything happen that waits for the event loop.
    void settle();

    // What there is to be seen of it.

    /// What the hands did not find while the program ran, in order.
    const QStringList &missed() const { return mMissed; }
    /// The object names of the windows that are shown.
    QStringList shownWindows() const;
    /// The rows of the shown list of members, "" where there is none.
    QString shownList() const;
    /// Every file below the program's folder, with what is in it.
    QMap<QString, QByteArray> files() const;

    static QString savedName() { return QStringLiteral("members.lst"); }
    static QByteArray formerContent() { return "what was there before"; }

private:
    void fillMembers();
    void fillLists();
    void fillSecurity();
    QWidget *find(const QMetaObject &type, const char *name);
    template <typename Control>
    Control *find(const char *name)
    {
        return static_cast<Control *>(find(Control::staticMetaObject, name));
    }

    QTemporaryDir mFolder;
    QStringList mMissed;
    WindowInstance<frmApplicationInfo> mApplicationInfo;
    WindowInstance<frmExtract> mExtract;
    WindowInstance<frmMemberListBuilder> mListBuilder;
    WindowInstance<frmMetadataViewer> mViewer;
    WindowInstance<frmMain> mMain;
};
