#pragma once

#include <QString>

#include <memory>
#include <vector>

/// A text in a TextStore.
struct StoredText
{
    const uchar *place;
    qint32 size; ///< in characters
    bool isWide; ///< two bytes a character, one where it is not: most texts need no more

    QString toString() const;
    bool isPrefixOf(QStringView text) const;
    /// `length` characters from `position` on, which lie within this text.
    StoredText mid(qint32 position, qint32 length) const;
};

/// Many texts side by side in a few large blocks. What is stored stays where it is until the store
/// goes.
class TextStore
{
public:
    StoredText append(QString text);

private:
    uchar *copy(const void *bytes, qsizetype size);

    std::vector<std::unique_ptr<uchar[]>> mBlocks;
    uchar *mFree = nullptr;
    qsizetype mLeft = 0;
    qsizetype mTotal = 0; ///< of the sizes of the blocks
};
