#pragma once

#include "viewer/MemberTree.h"

#include <QStringList>

#include <utility>

/// A tree as text: each node on a line, indented by two blanks a level below the first.
inline QString printed(const MemberTree &tree, const std::function<QString(qint32)> &line)
{
    QString text;
    std::vector<qint32> open;
    const auto openChildren = [&](qint32 node) {
        for (qint32 row = tree.childCount(node); row > 0; --row)
            open.push_back(tree.child(node, row - 1));
    };
    openChildren(MemberTree::none);
    while (!open.empty()) {
        const qint32 node = open.back();
        open.pop_back();
        text += QString(2 * (tree.level(node) - 1), u' ') + line(node) + u'\n';
        openChildren(node);
    }
    return text;
}

inline QString printedTexts(const MemberTree &tree)
{
    return printed(tree, [&](qint32 node) { return tree.text(node); });
}

inline QStringList tags(const MemberTree &tree)
{
    QStringList all;
    for (qint32 node = 0; node < tree.count(); ++node)
        all.append(tree.tag(node));
    return all;
}
