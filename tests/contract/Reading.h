#pragma once

#include "hfm/Session.h"
#include "support/Errors.h"

/// Whether `call` fails as the client fails on something it does not know: number 5, source "HFM".
template <typename Call>
bool failsAsUnknown(Call call)
{
    const auto error = errorOf(call);
    return error && error->number() == InvalidProcedureCall &&
           error->source() == QStringLiteral("HFM");
}

/// One of the twelve dimensions by its name, such as "Custom1".
std::shared_ptr<hfm::Dimension> dimensionOf(hfm::Session &session, const QString &name);

/// Adds the column "name" and a row for each of the twelve dimensions to the test's data.
void addDimensionRows();

/// The hierarchy below `top`, told from the children of each member alone.
hfm::Occurrences occurrencesBelow(hfm::Dimension &dimension, hfm::MemberId top);

/// The members of `ids`, each where it stands first.
QList<hfm::MemberId> once(const QList<hfm::MemberId> &ids);

QStringList labelsOf(hfm::Dimension &dimension, const QList<hfm::MemberId> &ids);

/// rootMember and every member.
QList<hfm::MemberId> rootAndMembers(hfm::Dimension &dimension);
