#include "Reading.h"
#include "runtime/RuntimeError.h"

#include <QTest>

#include <cstdlib>
#include <new>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What is larger cannot be had while a test says so.
std::size_t largestMemory = std::numeric_limits<std::size_t>::max();

class LittleMemory
{
public:
    explicit LittleMemory(std::size_t bytes) { largestMemory = bytes; }
    ~LittleMemory() { largestMemory = std::numeric_limits<std::size_t>::max(); }
    Q_DISABLE_COPY_MOVE(LittleMemory)
};

constexpr qsizetype mebibyte = qsizetype(1) << 20;
const QByteArray entities = "!MEMBERS=Entity\nA;DefaultParent=#root\n!HIERARCHIES=Entity\n;A\n";
const QByteArray longLine = "'" + QByteArray(10 * mebibyte, 'x') + '\n';

} // namespace

void *operator new(std::size_t size)
{
    void *memory = size > largestMemory ? nullptr : std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}
void *operator new[](std::size_t size)
{
    return operator new(size);
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return size > largestMemory ? nullptr : std::malloc(size);
}
void *operator new[](std::size_t size, const std::nothrow_t &nothrow) noexcept
{
    return operator new(size, nothrow);
}
void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete[](void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void *memory, std::size_t) noexcept
{
    std::free(memory);
}

/// Files that take more memory than there is.
class tst_MemoryRunsOut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metadataThatTakesTooMuchIsRefused()
    {
        const LittleMemory memory(8 * mebibyte);
        const Reading reading = readText(entities + longLine);
        QVERIFY(reading.refusal);
        QCOMPARE(reading.refusal->file(), u"Test.app"_s);
        QCOMPARE(reading.refusal->number(), qint32(OutOfMemory));
        QCOMPARE(reading.refusal->reason(), RuntimeError::usualDescription(OutOfMemory));
    }

    void aProfileThatTakesTooMuchIsLeftOut()
    {
        const LittleMemory memory(8 * mebibyte);
        const Reading reading =
            readTexts({entities, "!MEMBERS=View\nMine\n!HIERARCHIES=View\n;Mine\n" + longLine});
        QCOMPARE(reading.warnings(),
                 QStringList{u"Test.profile: "_s + RuntimeError::usualDescription(OutOfMemory)});
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
        QVERIFY(treeOf(*reading.metadata()->GetViewDimension()).startsWith(u"<Scenario View>\n"_s));
    }

    void aSecurityFileThatTakesTooMuchIsLeftOutAndTheOthersAreRead()
    {
        const LittleMemory memory(8 * mebibyte);
        const Reading reading =
            readTexts({entities, "!LANGUAGES\nItalian\n", "!SECURITY_CLASSES\nSC\n" + longLine});
        QCOMPARE(reading.warnings(),
                 QStringList{u"Test.sec: "_s + RuntimeError::usualDescription(OutOfMemory)});
        QCOMPARE(reading.metadata()->GetLanguages(), QStringList{u"Italian"_s});
        QVERIFY(reading.session()->GetSecurity()->EnumSecurityClasses().ids.isEmpty());
    }

    void bothMayBeLeftOut()
    {
        const LittleMemory memory(8 * mebibyte);
        const Reading reading = readTexts({entities, longLine, longLine});
        const QString reason = RuntimeError::usualDescription(OutOfMemory);
        QCOMPARE(reading.warnings(),
                 QStringList({u"Test.profile: "_s + reason, u"Test.sec: "_s + reason}));
        QCOMPARE(treeOf(*reading.entity()), u"A\n"_s);
    }
};

QTEST_APPLESS_MAIN(tst_MemoryRunsOut)
#include "tst_MemoryRunsOut.moc"
