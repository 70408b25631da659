#include "hfm/offline/ListRun.h"

#include "hfm/offline/HsDimension.h"
#include "hfm/offline/HsRoot.h"
#include "hfm/offline/script/ArrayData.h"
#include "hfm/offline/script/Coercions.h"

namespace hfm::offline {

using script::Kind;
using script::RunState;
using script::Text;
using script::Value;

namespace {

Value lastingText(const QString &text)
{
    return Value(Text(text, nullptr));
}

} // namespace

ListRun::ListRun(const Application &application, UserLists &lists, DimensionKind dimension,
                 ListId list)
    : mApplication(application), mLists(lists), mDimension(dimension), mList(list),
      mRoot(std::make_unique<HsRoot>(*this)), mSettings(std::make_unique<HsSettings>(*this)),
      mCurrencies(application.entityCurrencies.size()),
      mClasses(application.security.memberClasses.size())
{
}

ListRun::~ListRun() = default;

script::HostObject *ListRun::object(qint32)
{
    return mRoot.get();
}

Text ListRun::labelText(script::HostLabel label, RunState &run)
{
    return {stored(DimensionKind(label.group)).labels.text(label.number), &run.memory()};
}

script::HostObject *ListRun::dimensionObject(DimensionKind kind)
{
    auto &object = mDimensions[size_t(kind)];
    if (object == nullptr)
        object = std::make_unique<HsDimension>(*this, kind);
    return object.get();
}

/// Fails unless what is needed has been made.
void ListRun::requireMade(DimensionKind kind, qint32 list, const QString &what)
{
    const auto failing = [&](const QString &text) {
        return script::finalFaultSaying(script::HostFault, what + text);
    };
    switch (mLists.stateOf(kind, list)) {
    case UserLists::State::Unknown:
        throw ListNeeded{kind, list};
    case UserLists::State::Running:
        throw failing(QStringLiteral(" cannot be used to make itself."));
    case UserLists::State::Failed:
        throw failing(QStringLiteral(" could not be made."));
    case UserLists::State::Known:
        break;
    }
}

const QList<MemberId> *ListRun::userList(DimensionKind kind, const QString &name)
{
    requireMade(kind, UserLists::namesOnly,
                QStringLiteral("What EnumMemberLists tells of %1").arg(dimensionName(kind)));
    const auto id = mLists.find(kind, name);
    if (!id)
        return nullptr;
    const qint32 position = mLists.position(kind, *id);
    requireMade(kind, position, QStringLiteral("The list %1").arg(quoted(name.toUtf8())));
    return &mLists.of(kind).contents[size_t(position)].members;
}

Value ListRun::attribute(TextRef ref)
{
    if (ref == 0)
        return Value(Text());
    KeptText &kept = mTexts[ref % mTexts.size()];
    if (kept.ref != ref)
        kept = {ref, lastingText(mApplication.arena->text(ref))};
    return kept.text;
}

Value ListRun::currencyOf(qint32 entityCurrency)
{
    const bool isNone = entityCurrency < 0;
    if (isNone)
        return label(DimensionKind::Value, mApplication.noCurrency);
    Value &text = mCurrencies[size_t(entityCurrency)];
    if (text.kind() == Kind::Empty)
        text = lastingText(stored(DimensionKind::Value)
                               .labels.text(mApplication.entityCurrencies[size_t(entityCurrency)]));
    return text;
}

Value ListRun::className(ClassId securityClass)
{
    if (securityClass < 0)
        return Value(Text());
    Value &text = mClasses[size_t(securityClass)];
    if (text.kind() == Kind::Empty)
        text = lastingText(mApplication.security.classes.text(
            mApplication.security.memberClasses[size_t(securityClass)]));
    return text;
}

MemberId ListRun::findMember(DimensionKind kind, const Value &value, RunState &run)
{
    if (value.kind() == Kind::Label && value.asLabel().group == qint32(kind))
        return value.asLabel().number;
    const script::TextOf text(value, run);
    run.bounds.work(text.size());
    return mApplication.find(kind, text.view().toUtf8());
}

MemberId ListRun::member(DimensionKind kind, const Value &value, RunState &run)
{
    const MemberId member = findMember(kind, value, run);
    if (member < 0)
        throw hsFault(
            QStringLiteral("%1 is not a member of %2.")
                .arg(quoted(script::textOf(value, run).view().toUtf8()), dimensionName(kind)));
    return member;
}

bool ListRun::isGiven(const Value &value, RunState &run)
{
    return value.kind() == Kind::Label || script::TextOf(value, run).size() > 0;
}

void ListRun::setNames(const Value &value, RunState &run)
{
    if (value.kind() != Kind::Array || value.asArray()->extents.size() != 1)
        throw script::fault(script::WrongType);
    names.clear();
    const auto &elements = value.asArray()->elements;
    for (size_t i = 0; i < elements.size(); ++i) {
        run.bounds.step();
        const QString name = script::textOf(elements[i], run).view().toString();
        if (name.isEmpty())
            continue;
        if (i == 0)
            warn(QStringLiteral("%1 stands at position 0, where no list is; it is left out.")
                     .arg(quoted(name.toUtf8())),
                 run);
        else
            names.push_back({ListId(i), name, run.at.line});
    }
}

void ListRun::add(MemberId member, RunState &run)
{
    run.memory().take(sizeof(MemberId));
    members.append(member);
}

void ListRun::warn(const QString &text, const RunState &run)
{
    if (warnings.size() < size_t(Warnings::kept))
        warnings.emplace_back(run.at.line, text);
}

script::Fault hsFault(const QString &text)
{
    return {script::HostFault, text, false};
}

void failUnknownMember(const script::HostObject &object, HsMember member)
{
    throw script::finalFault(script::UnknownMember,
                             object.name() + QLatin1Char('.') + hsMemberName(member));
}

void requireArguments(script::Arguments arguments, size_t least, size_t most, HsMember member)
{
    if (arguments.size() < least || arguments.size() > most)
        throw script::fault(script::WrongArguments, hsMemberName(member));
}

} // namespace hfm::offline
