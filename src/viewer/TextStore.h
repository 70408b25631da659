#pragma once

#include <QStringView>

#include <memory>
#include <vector>

/// Many texts side by side in a few large blocks. What is stored stays where it is until the store
/// goes.
class TextStore
{
public:
    /// Stores `first` and, right behind it, `second`. Returns where `first` begins; it is not
    /// ended by a zero.
    const char16_t *append(QStringView first, QStringView second = {});

private:
    char16_t *room(qsizetype size);

    std::vector<std::unique_ptr<char16_t[]>> mBlocks;
    char16_t *mFree = nullptr;
    qsizetype mLeft = 0;
    qsizetype mNextBlock = 256;
};
