#include "hfm/offline/script/ArrayData.h"

namespace hfm::offline::script {

void Value::hold() const
{
    if (mKind == Kind::Array)
        ++mArray->references;
    else if (mText != nullptr)
        ++mText->references;
}

void Value::drop()
{
    if (mKind == Kind::Array)
        releaseArray(mArray);
    else
        Text::release(mText);
}

} // namespace hfm::offline::script
