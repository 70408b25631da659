#pragma once

#include <QPointer>

#include <functional>
#include <utility>

/// A window that the program has once at most. It is loaded (made) when it is first asked for,
/// and unloaded when it is closed: asked for again, it is loaded anew. What is still loaded at the
/// instance's end goes with it.
template <typename Window>
class WindowInstance
{
public:
    /// `load` makes the window, with new and not yet shown.
    explicit WindowInstance(std::function<Window *()> load) : mLoad(std::move(load)) {}
    ~WindowInstance() { delete mWindow.data(); }
    Q_DISABLE_COPY_MOVE(WindowInstance)

    /// The window, as it is when it is loaded. Fails as its loading fails; it is not loaded then.
    Window *window()
    {
        if (!isLoaded()) {
            mWindow = mLoad();
            mWindow->setAttribute(Qt::WA_DeleteOnClose);
        }
        return mWindow;
    }

    bool isLoaded() const { return mWindow && !isClosed(); }

private:
    // A closed window is deleted only when control is back in the event loop.
    bool isClosed() const
    {
        return mWindow->isHidden() && mWindow->testAttribute(Qt::WA_WState_ExplicitShowHide);
    }

    std::function<Window *()> mLoad;
    QPointer<Window> mWindow;
};
