#pragma once

#include "hfm/offline/script/Text.h"

#include <utility>

namespace hfm::offline::script {

class HostObject;
struct ArrayData;

/// What a value is. Numbers are Integer as long as they are whole and fit into 32 bits.
enum class Kind : quint8 {
    Empty,
    Null,
    Boolean,
    Integer,
    Double,
    Date,      ///< days since 30 December 1899
    Label,     ///< a text that the host keeps
    Object,    ///< Nothing too
    Reference, ///< in a procedure's slots only: a parameter that stands for another variable
    Text,
    Array,
};

/// Stands for a text that the host keeps and makes when it is asked for: most labels that a script
/// handles are only passed on.
struct HostLabel
{
    qint32 group;
    qint32 number;

    friend bool operator==(HostLabel, HostLabel) = default;
};

/// A value of a script (a "Variant"). Copies share texts and arrays; an array that is shared is
/// copied before it is written to, so that assigning one assigns its elements.
class Value
{
public:
    Value() = default; ///< Empty
    explicit Value(Text text) noexcept : mKind(Kind::Text)
    {
        mCounted = std::exchange(text.mData, nullptr);
    }
    Value(const Value &other) : mKind(other.mKind), mBits(other.mBits)
    {
        if (mKind >= Kind::Text)
            hold();
    }
    Value(Value &&other) noexcept : mKind(other.mKind), mBits(other.mBits)
    {
        other.mKind = Kind::Empty;
    }
    Value &operator=(const Value &other)
    {
        Value copy(other);
        return *this = std::move(copy);
    }
    Value &operator=(Value &&other) noexcept
    {
        std::swap(mKind, other.mKind);
        std::swap(mBits, other.mBits);
        return *this;
    }
    ~Value()
    {
        if (mKind >= Kind::Text)
            drop();
    }

    static Value null() { return Value(Kind::Null); }
    static Value boolean(bool value)
    {
        Value result(Kind::Boolean);
        result.mInteger = value ? -1 : 0;
        return result;
    }
    static Value integer(qint32 value)
    {
        Value result(Kind::Integer);
        result.mInteger = value;
        return result;
    }
    /// An Integer, or a Double where the number is too large for one.
    static Value whole(qint64 value)
    {
        return value == qint32(value) ? integer(qint32(value)) : number(double(value));
    }
    static Value number(double value)
    {
        Value result(Kind::Double);
        result.mDouble = value;
        return result;
    }
    static Value date(double days)
    {
        Value result(Kind::Date);
        result.mDouble = days;
        return result;
    }
    static Value label(HostLabel label)
    {
        Value result(Kind::Label);
        result.mLabel = label;
        return result;
    }
    /// `object` must outlive the value; nullptr is Nothing.
    static Value object(HostObject *object)
    {
        Value result(Kind::Object);
        result.mObject = object;
        return result;
    }
    static Value reference(Value *target)
    {
        Value result(Kind::Reference);
        result.mTarget = target;
        return result;
    }
    /// Takes over one reference to the data.
    static inline Value array(ArrayData *data);

    Kind kind() const { return mKind; }
    bool isNumeric() const { return mKind >= Kind::Boolean && mKind <= Kind::Double; }
    bool isTextual() const { return mKind == Kind::Text || mKind == Kind::Label; }

    // Each only of a value of that kind. A Boolean's integer is 0 or -1, a Date's number its days.
    qint32 asInteger() const { return mInteger; }
    double asDouble() const { return mDouble; }
    HostLabel asLabel() const { return mLabel; }
    HostObject *asObject() const { return mObject; }
    Value *asReference() const { return mTarget; }
    inline ArrayData *asArray() const; // in ArrayData.h, as is array()
    /// Valid as long as the value is not changed.
    QStringView textView() const
    {
        auto *const data = static_cast<Text::Data *>(mCounted);
        return data == nullptr ? QStringView() : QStringView(data->units(), data->size);
    }
    Text asText() const
    {
        Text text;
        text.mData = static_cast<Text::Data *>(mCounted);
        text.hold();
        return text;
    }
    /// The value that a slot stands for: itself but for a reference.
    Value &target() { return mKind == Kind::Reference ? *mTarget : *this; }
    const Value &target() const { return mKind == Kind::Reference ? *mTarget : *this; }

private:
    explicit Value(Kind kind) : mKind(kind) {}
    void hold() const
    {
        if (mCounted != nullptr)
            ++mCounted->references;
    }
    void drop()
    {
        if (mCounted != nullptr && --mCounted->references == 0)
            destroy();
    }
    void destroy();

    Kind mKind = Kind::Empty;
    union {
        quint64 mBits = 0;
        qint32 mInteger;
        double mDouble;
        HostLabel mLabel;
        HostObject *mObject;
        Value *mTarget;
        Counted *mCounted; ///< of a Text and of an Array; nullptr is the empty text
    };
};

static_assert(sizeof(Value) == 16);

} // namespace hfm::offline::script
