#pragma once

#include "generator/ApplicationGenerator.h"

#include <QByteArrayList>

namespace generator {

class ChunkWriter;

/// The member records of one dimension: which fields there are before DefaultParent, and what
/// stands in them.
class MemberRecords
{
public:
    explicit MemberRecords(const Request &request);

    bool isCustom() const { return mKind == Kind::Custom; }
    /// The names of the fields, as an extract writes them above the records.
    QByteArrayList columns() const;
    QByteArray label(qint32 member) const;
    /// Writes label and attributes.
    void write(qint32 member, bool isParent, ChunkWriter &out) const;

private:
    enum class Kind { Account, Entity, Scenario, Custom };

    void writeAccount(qint32 member, bool isParent, ChunkWriter &out) const;
    void writeEntity(qint32 member, bool isParent, ChunkWriter &out) const;

    Kind mKind;
    char mPrefix;
};

/// The currencies that entities have, as their labels.
const QByteArrayList &currencyLabels();

} // namespace generator
