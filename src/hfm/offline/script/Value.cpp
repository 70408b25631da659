#include "hfm/offline/script/ArrayData.h"

namespace hfm::offline::script {

void Value::destroy()
{
    if (mKind == Kind::Array)
        destroyArray(static_cast<ArrayData *>(mCounted));
    else
        Text::destroy(static_cast<Text::Data *>(mCounted));
}

} // namespace hfm::offline::script
