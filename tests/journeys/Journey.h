#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

/// Drives the whole program as a person would, one step after the other. A step waits until its
/// window is the one that takes input, then acts on it; an action may open a modal window, whose
/// step then goes on inside that window's own event loop.
class Journey : public QObject
{
public:
    using Action = std::function<void(QWidget &window)>;

    /// `pictures` is the folder that pictures and files go to.
    explicit Journey(QString pictures, QObject *parent = nullptr);

    /// Adds a step for the top-level window of that object name. A message box goes by
    /// "QMessageBox".
    void on(const QString &window, const QString &what, Action action);
    /// Adds a step for that window that comes once `ready` holds.
    void when(const QString &window, const QString &what, std::function<bool()> ready,
              Action action);
    /// Adds a step for that window that comes once the text of one of its controls is `expected`.
    void once(const QString &window, const char *control,
              std::function<bool(const QString &text)> expected, const QString &what,
              Action action);

    /// Begins; the program ends with exit code 1 when a step does not come within its time or
    /// fails a check.
    void start();
    /// True when every step has been taken.
    bool isDone() const { return mNext == mSteps.size(); }

    /// Saves a picture of the window as NAME.png in the folder of pictures.
    void picture(QWidget &window, const QString &name) const;
    QString folder() const { return mPictures; }

    /// Ends the journey as failed when `condition` is false.
    void check(bool condition, const QString &what);

private:
    struct Step
    {
        QString what;
        std::function<bool()> ready;
        std::function<void()> act;
    };

    void tick();
    void fail(const QString &why);

    QString mPictures;
    std::vector<Step> mSteps;
    std::size_t mNext = 0;
    QTimer mTimer;
    QElapsedTimer mWaiting;
};
