#include "hfm/offline/Application.h"

#include "hfm/offline/Additions.h"
#include "hfm/offline/SystemMembers.h"
#include "hfm/offline/UserLists.h"

#include <limits>

namespace hfm::offline {

namespace {

/// The languages that the profile lists, else those that descriptions are in, else English.
void setLanguages(Application &application, const ApplicationDraft &draft)
{
    const Names &listed = draft.listedLanguages;
    const Names &named = listed.count() > 0 ? listed : draft.languages;
    constexpr qint32 most = std::numeric_limits<qint16>::max();
    for (qint32 i = 0; i < std::min(named.count(), most); ++i) {
        application.languages.append(named.text(i));
        application.languageNumbers.push_back(draft.languages.find(named.at(i)));
    }
    if (application.languages.isEmpty()) {
        application.languages = {QStringLiteral("English")};
        application.languageNumbers = {-1};
    }
}

} // namespace

MemberId Application::find(DimensionKind kind, QByteArrayView label) const
{
    const MemberId member = dimension(kind).labels.find(label);
    if (member >= 0 || kind != DimensionKind::ICP)
        return member;
    return partners.of(dimension(DimensionKind::Entity).labels.find(label));
}

std::shared_ptr<const Application>
finishApplication(ApplicationDraft &draft, const ApplicationFiles &files, const QDateTime &now)
{
    draft.pool.clear();
    for (DimensionDraft &dimension : draft.dimensions)
        dimension.putRecordsFirst();
    Additions additions = addSystemMembers(draft, now.date().year());
    const Labels &values = draft.dimension(DimensionKind::Value).labels();
    const MemberId noCurrency = values.find(noneLabel);

    std::vector<StoredDimension> dimensions;
    dimensions.reserve(allDimensionKinds.size());
    for (const DimensionKind kind : allDimensionKinds)
        dimensions.push_back(storeDimension(draft, kind, std::move(additions.lists[size_t(kind)])));

    auto application =
        std::make_shared<Application>(Application{files,
                                                  {},
                                                  nullptr,
                                                  std::move(dimensions),
                                                  {},
                                                  {},
                                                  storeSecurity(draft),
                                                  noCurrency,
                                                  std::move(additions.entityCurrencies),
                                                  std::move(additions.topMembers),
                                                  std::move(additions.partners),
                                                  std::move(draft.memberListFile),
                                                  {},
                                                  {},
                                                  now,
                                                  nullptr});
    setLanguages(*application, draft);
    application->arena = std::move(draft.arena);
    application->warnings = draft.warnings;
    for (const QByteArray &name : std::as_const(draft.customNames))
        application->customNames.append(QString::fromUtf8(name));
    if (draft.defaultCurrency.count() > 0)
        application->defaultCurrency = draft.defaultCurrency.text(0);
    application->userLists = std::make_shared<UserLists>(*application);
    return application;
}

std::shared_ptr<const Application> finishApplication(ApplicationDraft &draft,
                                                     const ApplicationFiles &files, int currentYear)
{
    return finishApplication(draft, files, QDate(currentYear, 1, 1).startOfDay());
}

} // namespace hfm::offline
