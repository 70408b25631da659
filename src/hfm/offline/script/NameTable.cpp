#include "hfm/offline/script/NameTable.h"

namespace hfm::offline::script {

NameId NameTable::add(QStringView name)
{
    const QString key = folded(name);
    const auto known = mIds.constFind(key);
    if (known != mIds.constEnd())
        return *known;
    const auto id = NameId(mSpellings.size());
    mIds.insert(key, id);
    mSpellings.append(name.toString());
    return id;
}

} // namespace hfm::offline::script
