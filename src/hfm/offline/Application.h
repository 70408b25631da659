#pragma once

#include "hfm/offline/Cluster.h"
#include "hfm/offline/SharedMembers.h"
#include "hfm/offline/StoredDimension.h"
#include "hfm/offline/StoredSecurity.h"
#include "hfm/offline/Warnings.h"

#include <QDateTime>

#include <memory>

namespace hfm::offline {

class UserLists;

/// An application as its files tell it. Nothing in it changes any more, so it may be shared.
struct Application
{
    ApplicationFiles files;
    Warnings warnings;

    std::unique_ptr<TextArena> arena;
    std::vector<StoredDimension> dimensions; ///< by DimensionKind
    QList<QString> languages;
    /// By position in `languages`: the language's number in Descriptions, or -1.
    std::vector<qint32> languageNumbers;
    StoredSecurity security;

    MemberId noCurrency; ///< the Value member of an entity that names no currency
    /// The Value members that EntityRecord::currency counts.
    std::vector<MemberId> entityCurrencies;
    /// For each custom dimension, the members that AccountRecord::topMembers counts.
    std::array<std::vector<MemberId>, 4> topMembers;

    SharedMembers partners; ///< the members of ICP that only entities' labels lead to

    MemberListFile memberListFile; ///< as it stands on the disk
    QList<QString> customNames;    ///< the custom dimensions' own names, in order
    QString defaultCurrency;       ///< of the application settings; empty where they name none
    QDateTime openedAt;            ///< when the application was read
    /// The user-defined lists. They change as they are asked for: each is made then, once.
    std::shared_ptr<UserLists> userLists;

    const StoredDimension &dimension(DimensionKind kind) const { return dimensions[size_t(kind)]; }
    /// The member of that label, in any letter case; -1 where there is none.
    MemberId find(DimensionKind kind, QByteArrayView label) const;
};

/// Makes the application of its draft, which is used up. The year of `now` is for an application
/// that names no years, its day and time for member lists that ask for them. Fails with
/// ReadingError where a hierarchy runs in a circle.
std::shared_ptr<const Application> finishApplication(struct ApplicationDraft &draft,
                                                     const ApplicationFiles &files,
                                                     const QDateTime &now);
/// The same at the beginning of that year.
std::shared_ptr<const Application>
finishApplication(ApplicationDraft &draft, const ApplicationFiles &files, int currentYear);

/// Reads an application's files. Fails with ReadingError where the metadata file cannot be read;
/// what is wrong in the other files is a warning.
std::shared_ptr<const Application> readApplication(const ApplicationFiles &files,
                                                   const QDateTime &now);
/// The same at the beginning of that year.
std::shared_ptr<const Application> readApplication(const ApplicationFiles &files, int currentYear);

} // namespace hfm::offline
