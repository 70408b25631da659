#include "appinfo/LoadError.h"

#include <QStringList>

using namespace Qt::StringLiterals;

Prompt loadError(const QString &routine, const RuntimeError &error)
{
    const QStringList lines = {
        u"Error Encountered in "_s + routine + u':',
        u"Error#: "_s + QString::number(error.number()),
        u"Error Desc: "_s + error.description(),
        u"Error Source: "_s + error.source(),
        QString(),
        u"Please stop and restart Tessaly"_s,
    };
    return {defaultPromptTitle(), lines.join(u'\r'), Prompt::Icon::Critical, Prompt::Buttons::Ok};
}
