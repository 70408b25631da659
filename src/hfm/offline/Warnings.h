#pragma once

#include "hfm/offline/Place.h"

#include <QByteArrayView>
#include <QHash>
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
/// kept, so that a file that is wrong from top to bottom costs no more memory than a good one. Of
/// each kind some of each file are kept, however many others stand before them.
class Warnings
{
public:
    static constexpr qsizetype kept = 1000;
    static constexpr qsizetype keptOfAKind = 20;

    /// Names a file of the application for the warnings that concern it.
    void setFileName(SourceFile file, const QString &name) { mNames[size_t(file)] = name; }
    QString fileName(SourceFile file) const { return mNames[size_t(file)]; }

    /// Counts a warning. Its text, which takes time to make, is only asked for if it is kept. Its
    /// kind is the place in the program that it comes from, as the type of `text` tells.
    template <typename Text>
    void add(Place place, Text text)
    {
        static const char kind = 0;
        if (countAndKeep(&kind, place.file()))
            mEntries.append({place, text()});
    }

    qint64 count() const { return mCount; }
    /// Those that were kept, in the order of files and lines.
    QList<Warning> list() const;

private:
    bool countAndKeep(const void *kind, SourceFile file);

    struct Entry
    {
        Place place;
        QString text;
    };

    std::array<QString, 4> mNames;
    QList<Entry> mEntries;
    qint64 mCount = 0;
    std::array<QHash<const void *, qsizetype>, 4> mKeptOfKinds; ///< by SourceFile
};

/// A label or another text of a file as a message quotes it: in single quotes, and cut where it is
/// longer than a message can bear.
QString quoted(QByteArrayView utf8);

} // namespace hfm::offline
