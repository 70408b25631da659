#pragma once

#include "runtime/ErrorTrap.h"

#include <QTreeView>

/// A tree view of one column that opens nodes quickly however many nodes there are, as deep as they
/// may be, and lets long texts be scrolled to. The signs of nodes answer to the left mouse button
/// alone.
class DeepTreeView : public QTreeView
{
    Q_OBJECT

public:
    /// How deep nodes are opened by expandBelow(). Qt's tree view lays out open nodes recursively,
    /// with some 350 bytes of the thread's stack for each level: these take less than half of the
    /// usual 8 MB. More would help nobody: Qt counts a row's level in 16 bits and a column's width
    /// in 20, which indentation alone has used up at 52,000 levels. No application is near any of
    /// it.
    static constexpr qint32 deepestExpansion = 10000;

    explicit DeepTreeView(ErrorTrap &trap, QWidget *parent = nullptr);

    /// Opens `index` and every node below it; every node of the tree where it is invalid.
    void expandBelow(const QModelIndex &index);

    void reset() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;

private:
    bool handleKey(const QKeyEvent &event);
    bool openAt(const QPoint &position);
    void open(const QModelIndex &index);
    bool isClosedParent(const QModelIndex &index) const;
    void fitColumn();

    ErrorTrap &mTrap;
    int mWidest = 0; ///< of the rows seen since the last reset, in pixels
};
