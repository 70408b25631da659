#pragma once

#include <QByteArray>
#include <QMap>

#include <optional>

/// The system's file functions, which fail where a test wants it. One at a time may be alive; while
/// one is, what is written to regular files goes through it.
class FaultySystem
{
public:
    FaultySystem();
    ~FaultySystem();
    Q_DISABLE_COPY_MOVE(FaultySystem)

    /// Lets the `call`-th call (1 is the first) of a function ("write", "fdatasync", "rename",
    /// "ftruncate", "posix_fallocate", "fchown", "fchmod") fail with an errno.
    void fail(const QByteArray &function, int call, int error);
    /// The most bytes that one write takes.
    void setShortWrites(size_t bytes) { mMostWritten = bytes; }
    /// The bytes by which files can still grow before the disk is full.
    void setRoom(qint64 bytes) { mRoom = bytes; }

    /// How often each function was called.
    const QMap<QByteArray, int> &calls() const { return mCalls; }
    /// Whether the call that was to fail did.
    bool hasFailed() const { return mHasFailed; }

    // For the functions themselves.

    /// The errno that this call of `function` is to fail with; 0 when it is not to.
    int enter(const char *function);
    /// How many of `count` bytes a write may take; an errno, negative, when it may take none.
    ssize_t allowed(int file, size_t count);
    /// Takes that many bytes of the room; false where there are not so many.
    bool takeRoom(qint64 bytes);

    static FaultySystem *alive();

private:
    QMap<QByteArray, int> mCalls;
    QByteArray mFunction;
    int mCall = 0;
    int mError = 0;
    bool mHasFailed = false;
    std::optional<size_t> mMostWritten;
    std::optional<qint64> mRoom;
};
