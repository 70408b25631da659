#pragma once

#include <QtGlobal>

#include <algorithm>

namespace hfm::offline {

/// The files that an application is read from.
enum class SourceFile : quint32 { Metadata, Profile, Security, MemberLists };

/// A line of one of the application's files, in four bytes, because there is one for each member
/// and each edge while they are being read. Lines count from 1; line 0 stands for no line at all,
/// as for what the client itself adds. Lines past the last that fits are told as that last one.
struct Place
{
    static constexpr qint64 lastLine = (qint64(1) << 30) - 1;

    constexpr Place() = default;
    constexpr Place(SourceFile sourceFile, qint64 sourceLine)
        : mFile(quint32(sourceFile)), mLine(quint32(std::min(sourceLine, lastLine)))
    {
    }
    constexpr SourceFile file() const { return SourceFile(mFile); }
    constexpr qint64 line() const { return mLine; }

private:
    quint32 mFile : 2 = 0;
    quint32 mLine : 30 = 0;
};

} // namespace hfm::offline
