#include "Journey.h"

#include "Hands.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int tickMilliseconds = 5;
constexpr qint64 patienceMilliseconds = 60'000;

/// The visible window of that name, when no other modal window keeps input from it.
QWidget *windowTakingInput(const QString &name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        const bool isIt = name == QLatin1String("QMessageBox")
                              ? qobject_cast<QMessageBox *>(window) != nullptr
                              : window->objectName() == name;
        if (!isIt || !window->isVisible())
            continue;
        QWidget *modal = QApplication::activeModalWidget();
        if (modal == nullptr || modal == window)
            return window;
    }
    return nullptr;
}

} // namespace

Journey::Journey(QString pictures, QObject *parent)
    : QObject(parent), mPictures(std::move(pictures))
{
    QDir().mkpath(mPictures);
    mTimer.setInterval(tickMilliseconds);
    connect(&mTimer, &QTimer::timeout, this, &Journey::tick);
}

void Journey::on(const QString &window, const QString &what, Action action)
{
    mSteps.push_back(
        {what, [window] { return windowTakingInput(window) != nullptr; },
         [window, action = std::move(action)] { action(*windowTakingInput(window)); }});
}

void Journey::when(const QString &window, const QString &what, std::function<bool()> ready,
                   Action action)
{
    mSteps.push_back(
        {what,
         [window, ready = std::move(ready)] {
             return windowTakingInput(window) != nullptr && ready();
         },
         [window, action = std::move(action)] { action(*windowTakingInput(window)); }});
}

void Journey::once(const QString &window, const char *control,
                   std::function<bool(const QString &text)> expected, const QString &what,
                   Action action)
{
    const auto ready = [window, control, expected = std::move(expected)] {
        QWidget *found = windowTakingInput(window);
        return found != nullptr && expected(Hands::text(*found, control));
    };
    mSteps.push_back({what, ready, [window, action = std::move(action)] {
                          action(*windowTakingInput(window));
                      }});
}

void Journey::start()
{
    mWaiting.start();
    mTimer.start();
}

void Journey::tick()
{
    if (isDone()) {
        mTimer.stop();
        return;
    }
    const Step &step = mSteps[mNext];
    if (!step.ready()) {
        if (mWaiting.elapsed() > patienceMilliseconds)
            fail(QStringLiteral("it never came"));
        return;
    }
    ++mNext;
    mWaiting.restart();
    std::printf("%s\n", qPrintable(step.what));
    std::fflush(stdout);
    step.act();
}

void Journey::picture(QWidget &window, const QString &name) const
{
    window.grab().save(QDir(mPictures).filePath(name + QStringLiteral(".png")));
}

void Journey::check(bool condition, const QString &what)
{
    if (!condition)
        fail(what);
}

void Journey::fail(const QString &why)
{
    const QString step = mNext < mSteps.size() ? mSteps[mNext].what : QStringLiteral("the end");
    std::fprintf(stderr, "The journey failed at or before '%s': %s\n", qPrintable(step),
                 qPrintable(why));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *box = qobject_cast<QMessageBox *>(window); box != nullptr && box->isVisible())
            std::fprintf(stderr, "A message is open: %s\n", qPrintable(box->text()));
    }
    std::_Exit(1);
}
