#pragma once

#include "shell/modGlobal.h"
#include "support/FakeServices.h"

#include <QStringList>
#include <QWidget>

#include <memory>

/// Every window of the program, each opened as a person finds it: logged on to an application of
/// the fake client, with a dimension chosen. The dialogs of the offline client show the sample
/// cluster.
class EveryWindow
{
public:
    EveryWindow();

    /// The object names of all windows, in the order in which a person meets them.
    static QStringList names();
    /// The window of that name, shown.
    std::unique_ptr<QWidget> open(const QString &name);

private:
    QWidget *made(const QString &name);

    FakeServices mFake;
    modGlobal mGlobal;
    std::unique_ptr<QWidget> mOwner;
};
