#include "WholeProgram.h"

#include "shell/frmSplash.h"
#include "shell/StartUp.h"

#include <QAction>
#include <QApplication>
#include <QDirIterator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

template <typename Window>
frmMain::Tool toolOf(WindowInstance<Window> &instance)
{
    return [&instance] { return instance.window(); };
}

} // namespace

WholeProgram::WholeProgram()
    : mApplicationInfo([this] { return new frmApplicationInfo(fakes.services, global); }),
      mExtract([this] { return new frmExtract(fakes.services, global); }),
      mListBuilder([this] { return new frmMemberListBuilder(fakes.services, global); }),
      mViewer([this] { return new frmMetadataViewer(fakes.services, global); }), mMain([this] {
          return new frmMain(
              global, fakes.services,
              {toolOf(mApplicationInfo), toolOf(mExtract), toolOf(mListBuilder), toolOf(mViewer)});
      })
{
    fakes.services.programFolder = mFolder.path();
    fakes.clock.stepMilliseconds = 6000; // the splash has been seen when it is looked at again
    QFile former(mFolder.filePath(savedName()));
    if (!former.open(QIODevice::WriteOnly) || former.write(formerContent()) < 0)
        qFatal("The folder for a run cannot be written");
    fillMembers();
    fillLists();
    fillSecurity();
}

WholeProgram::~WholeProgram()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Few members, for every call is to fail once; but each kind of them: parents and base members,
/// shared ones of both, and all attributes.
void WholeProgram::fillMembers()
{
    FakeApplication &application = fakes.hfm.application();
    application.languages = {u"English"_s, u"German"_s};
    for (const auto &dimension : application.dimensions)
        dimension->setMembers(u"P|Parent\n  A|Alpha"_s);
    application.value().setMembers(u"EUR|Euro\nUSD"_s);
    application.entity().setMembers(u"G|Group\n  E|East\nL|Legal\n  E"_s);
    for (const QString &label : {u"G"_s, u"E"_s, u"L"_s}) {
        FakeEntity &entity = application.entity().entity(label);
        entity.currency = 0;
        entity.securityClass = 0;
    }
    for (const QString &label : {u"P"_s, u"A"_s}) {
        application.account().account(label).topCustoms = {0, 0, 0, 0};
        application.account().account(label).securityClass = 0;
        application.custom(1).custom(label).securityClass = 0;
    }
}

void WholeProgram::fillLists()
{
    FakeApplication &application = fakes.hfm.application();
    application.entity().addUserList(u"Europe"_s, {u"G"_s, u"E"_s});
    application.account().addUserList(u"Key figures"_s, {u"P"_s, u"A"_s});
    application.account().addSystemList(u"[System]"_s, {u"A"_s});
    for (const int number : {1, 2}) {
        application.custom(number).addSystemList(u"[Currencies]"_s, {u"A"_s});
        application.custom(number).addSystemList(u"[ConsolMethods]"_s, {u"A"_s});
    }
    application.memberListFile = {"Sub EnumMemberLists()\r\n", 1};
}

void WholeProgram::fillSecurity()
{
    FakeSecurity &security = *fakes.hfm.application().security;
    security.addClass(u"SC_FIN"_s);
    security.addRole(u"Administrator"_s);
    security.addUser(u"CORP\\jane"_s);
    security.setRole(u"CORP\\jane"_s, u"Administrator"_s);
    security.setAccess(u"CORP\\jane"_s, u"SC_FIN"_s, 4);
}

void WholeProgram::start()
{
    startUp(fakes.services, {[this] { frmSplash(fakes.services).showModal(); },
                             [this] {
                                 frmMain *window = mMain.window();
                                 if (!fakes.program.isEnding())
                                     window->show();
                             }});
    settle();
}

void WholeProgram::click(const char *name)
{
    if (auto *button = find<QAbstractButton>(name))
        button->click();
    settle();
}

void WholeProgram::trigger(const char *action)
{
    bool isFound = false;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *entry = window->findChild<QAction *>(QLatin1StringView(action));
        if (!entry || !window->isVisible())
            continue;
        isFound = true;
        entry->trigger();
        break;
    }
    if (!isFound && !fakes.program.isEnding())
        mMissed.append(QLatin1StringView(action));
    settle();
}

void WholeProgram::choose(const char *comboBox, const QString &entry)
{
    if (auto *box = find<QComboBox>(comboBox)) {
        const int index = box->findText(entry);
        if (index >= 0) {
            box->setCurrentIndex(index);
            Q_EMIT box->activated(index);
        } else if (!fakes.program.isEnding()) {
            mMissed.append(QLatin1StringView(comboBox) + u": "_s + entry);
        }
    }
    settle();
}

void WholeProgram::chooseRow(const char *list, int row)
{
    if (auto *view = find<QAbstractItemView>(list)) {
        const QModelIndex index = view->model()->index(row, 0);
        if (!index.isValid() && !fakes.program.isEnding())
            mMissed.append(QLatin1StringView(list) + u": row "_s + QString::number(row));
        view->setCurrentIndex(index);
    }
    settle();
}

void WholeProgram::showTab(const char *tabs, int index)
{
    if (auto *control = find<QTabWidget>(tabs)) {
        control->setTabEnabled(index, true);
        control->setCurrentIndex(index);
    }
    settle();
}

void WholeProgram::type(const char *lineEdit, const QString &text)
{
    if (auto *edit = find<QLineEdit>(lineEdit)) {
        edit->setText(text);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(edit, &release);
    }
    settle();
}

void WholeProgram::fill(const char *listBox, const QStringList &lines)
{
    if (auto *list = find<QListView>(listBox))
        TabControls::setLines(list, lines);
}

void WholeProgram::close(const char *window)
{
    if (auto *shown = find<QWidget>(window))
        shown->close();
    settle();
}

void WholeProgram::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/// A control of a window that is shown, or such a window.
QWidget *WholeProgram::find(const QMetaObject &type, const char *name)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        QList<QWidget *> candidates = window->findChildren<QWidget *>(QLatin1StringView(name));
        if (window->objectName() == QLatin1StringView(name))
            candidates.prepend(window);
        for (QWidget *candidate : candidates)
            if (candidate->metaObject()->inherits(&type))
                return candidate;
    }
    if (!fakes.program.isEnding())
        mMissed.append(QLatin1StringView(name));
    return nullptr;
}

QStringList WholeProgram::shownWindows() const
{
    QStringList names;
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && !window->objectName().isEmpty())
            names.append(window->objectName());
    names.sort();
    return names;
}

QString WholeProgram::shownList() const
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const auto *list = window->findChild<QListView *>(u"lstMembersInList"_s);
        if (list && window->isVisible())
            return TabControls::lines(list).join(u'\n');
    }
    return {};
}

QMap<QString, QByteArray> WholeProgram::files() const
{
    QMap<QString, QByteArray> found;
    QDirIterator each(mFolder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QFile file(each.next());
        found[each.fileName()] =
            file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }
    return found;
}
