#pragma once

#include "hfm/offline/script/Coercions.h"
#include "hfm/offline/script/Evaluator.h"

#include <QStringList>

/// A host for tests of the language alone. Its object Out has
///
///     Put value      notes the value, written as put() does
///     Words(count)   an array of labels that the host keeps: "word0", "word1", ...
///     Word(number)   one of them
///     Self           the object itself
///     Refuse         fails with the host's own words
class TestHost final : public hfm::offline::script::Host, public hfm::offline::script::HostObject
{
public:
    QStringList output;

    static QStringList objects() { return {QStringLiteral("Out")}; }

    hfm::offline::script::HostObject *object(qint32) override { return this; }
    qint32 memberNumber(const QString &name) const override
    {
        static const QStringList members = {QStringLiteral("put"), QStringLiteral("words"),
                                            QStringLiteral("word"), QStringLiteral("self"),
                                            QStringLiteral("refuse")};
        return qint32(members.indexOf(name.toLower()));
    }
    hfm::offline::script::Text labelText(hfm::offline::script::HostLabel label,
                                         hfm::offline::script::RunState &run) override
    {
        return {QStringLiteral("word%1").arg(label.number), &run.memory()};
    }
    QString name() const override { return QStringLiteral("Out"); }
    hfm::offline::script::Value invoke(qint32 member, hfm::offline::script::Arguments arguments,
                                       hfm::offline::script::RunState &run) override;

private:
    QString put(const hfm::offline::script::Value &value, hfm::offline::script::RunState &run);
};

/// What came of running a script: the lines that it put out, and behind them, where it failed,
/// "! LINE:COLUMN: TEXT".
QStringList outcomeOf(const QString &script, hfm::offline::script::Limits limits = {});
