#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace hfm::offline::script {

/// Stands for a name of a script; names that differ in letter case only have the same.
using NameId = qint32;

/// The names of a script, numbered from 0 as they are met.
class NameTable
{
public:
    NameId add(QStringView name);
    /// The name's number, or -1.
    NameId find(QStringView name) const { return mIds.value(folded(name), -1); }
    qsizetype count() const { return mSpellings.size(); }
    /// As it was spelled first.
    const QString &spelling(NameId id) const { return mSpellings[id]; }

    /// The form that is the same for all spellings of a name.
    static QString folded(QStringView name) { return name.toString().toCaseFolded(); }

private:
    QHash<QString, NameId> mIds;
    QList<QString> mSpellings;
};

} // namespace hfm::offline::script
