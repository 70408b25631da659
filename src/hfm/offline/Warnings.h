#pragma once

#include "hfm/offline/Place.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <array>

namespace hfm::offline {

/// Something that is wrong in an application's files but does not keep it from being opened.
struct Warning
{
    QString file; ///< without its folder
    qint64 line;  ///< from 1; 0 where it concerns the file as a whole
    QString text;
};

/// What was found wrong while an application was read. All of it is counted, the first so many are
/// kept, so that a file that is wrong from top to bottom costs no more memory than a good one.
class Warnings
{
public:
    static constexpr qsizetype kept = 1000;

    /// Names a file of the application for the warnings that concern it.
    void setFileName(SourceFile file, const QString &name) { mNames[size_t(file)] = name; }
    QString fileName(SourceFile file) const { return mNames[size_t(file)]; }

    /// Counts a warning. Its text, which takes time to make, is only asked for if it is kept.
    template <typename Text>
    void add(Place place, Text text)
    {
        if (mCount++ < kept)
            mEntries.append({place, text()});
    }

    qint64 count() const { return mCount; }
    /// Those that were kept, in the order of files and lines.
    QList<Warning> list() const;

private:
    struct Entry
    {
        Place place;
        QString text;
    };

    std::array<QString, 4> mNames;
    QList<Entry> mEntries;
    qint64 mCount = 0;
};

/// A label or another text of a file as a message quotes it: in single quotes, and cut where it is
/// longer than a message can bear.
QString quoted(QByteArrayView utf8);

} // namespace hfm::offline
