#pragma once

#include "hfm/offline/Texts.h"

namespace hfm::offline {

/// The descriptions of one member within Descriptions.
struct DescriptionRange
{
    quint32 first = 0;
    quint16 count = 0;
};

/// The descriptions of all members of an application, those of one member side by side. Languages
/// are numbered as they were met.
class Descriptions
{
public:
    /// Begins the descriptions of the next member.
    DescriptionRange begin() const { return {quint32(mTexts.size()), 0}; }
    /// Adds one to the range that was begun last. More of them than HFM has languages are left out.
    void add(DescriptionRange &range, quint16 language, TextRef text)
    {
        constexpr quint16 most = 0xFFFF;
        if (range.count == most)
            return;
        mLanguages.push_back(language);
        mTexts.push_back(text);
        ++range.count;
    }

    /// The first text in that language; the empty text where there is none.
    TextRef find(const DescriptionRange &range, quint16 language) const
    {
        for (size_t i = range.first; i < size_t(range.first) + range.count; ++i) {
            if (mLanguages[i] == language)
                return mTexts[i];
        }
        return 0;
    }

    void squeeze()
    {
        mLanguages.shrink_to_fit();
        mTexts.shrink_to_fit();
    }

private:
    LargeVector<quint16> mLanguages;
    LargeVector<TextRef> mTexts;
};

} // namespace hfm::offline
