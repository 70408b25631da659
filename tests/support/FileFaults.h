#pragma once

#include <QString>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

/// While one of these lives no file grows beyond `bytes`: a disk that is full from there on.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        mSignal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mLimit);
        const rlimit limit{bytes, mLimit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &mLimit);
        std::signal(SIGXFSZ, mSignal);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    void (*mSignal)(int) = nullptr;
    rlimit mLimit{};
};

/// While one of these lives the process is an ordinary user: permissions do not bind root.
class OrdinaryUser
{
public:
    static constexpr uid_t nobody = 65534;

    OrdinaryUser() : mIsRoot(geteuid() == 0)
    {
        if (mIsRoot && setresuid(nobody, nobody, 0) != 0)
            qFatal("root cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (mIsRoot && setresuid(0, 0, 0) != 0)
            qFatal("the ordinary user cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

    /// Gives a file or folder to the user that this class makes of root.
    static void own(const QString &path)
    {
        if (geteuid() == 0 && chown(path.toUtf8().constData(), nobody, gid_t(-1)) != 0)
            qFatal("root cannot give a file away");
    }

private:
    bool mIsRoot;
};
