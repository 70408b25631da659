#include "shell/frmTabControls.h"

#include "shell/frmComboWheel.h"
#include "shell/frmLargeText.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QProxyStyle>
#include <QStringListModel>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostShownEntries = 16; ///< of a combo box's list without scrolling
constexpr int shortestListText = 16; ///< characters that a combo box is at least wide enough for

/// The application's style, but that the lists of all combo boxes are short ones with a scroll bar.
/// Some styles open a list that is not typed into over the whole height of the screen, and look at
/// every entry for it.
class ShortListStyle final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        if (hint == SH_ComboBox_Popup)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

    static QStyle *shared()
    {
        static QPointer<ShortListStyle> style;
        if (!style) {
            style = new ShortListStyle;
            style->setParent(qApp);
        }
        return style;
    }
};

/// A caption as it is spoken.
QString spoken(QString caption)
{
    return caption.remove(u'&').remove(u':').trimmed();
}

/// Makes all rows of a list as wide as the one with the most characters, so that each can be
/// scrolled to. A list of equal rows asks for a single row's size.
class EqualRows final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &row) const override
    {
        const QAbstractItemModel &rows = *row.model();
        QModelIndex longest = row;
        qsizetype most = 0;
        for (int i = 0; i < rows.rowCount(); ++i) {
            const QModelIndex candidate = rows.index(i, 0);
            const qsizetype length = candidate.data().toString().size();
            if (length > most) {
                most = length;
                longest = candidate;
            }
        }
        return QStyledItemDelegate::sizeHint(option, longest);
    }
};

} // namespace

QLabel *TabControls::makeLabel(QWidget *parent, const char *name, const QString &text)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel *TabControls::makeHeading(QWidget *parent, const char *name)
{
    QLabel *label = makeLabel(parent, name, {});
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel *TabControls::makeStatusPanel(QStatusBar *bar)
{
    bar->setObjectName(u"sbStatusBar"_s);
    QLabel *panel = makeLabel(bar, "sbStatusBar_1", {});
    panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar->addWidget(panel, 1);
    return panel;
}

QComboBox *TabControls::makeList(QLabel *label, const char *name)
{
    auto *list = new QComboBox(label->parentWidget());
    list->setObjectName(QLatin1StringView(name));
    list->setAccessibleName(spoken(label->text()));
    label->setBuddy(list);
    new frmComboWheel(list);
    list->setStyle(ShortListStyle::shared());
    list->setMaxVisibleItems(mostShownEntries);
    // Neither the box nor its list is sized by a look at every entry.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(shortestListText);
    list->setModel(new QStringListModel(list));
    if (auto *view = qobject_cast<QListView *>(list->view()))
        view->setUniformItemSizes(true);
    return list;
}

QComboBox *TabControls::makeTypedList(QLabel *label, const char *name)
{
    QComboBox *list = makeList(label, name);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);
    // Qt would take Enter, and leaving the text, for a choice where the text is an entry's.
    QObject::disconnect(list->lineEdit(), &QLineEdit::returnPressed, list, nullptr);
    QObject::disconnect(list->lineEdit(), &QLineEdit::editingFinished, list, nullptr);
    list->lineEdit()->setAccessibleName(list->accessibleName());
    return list;
}

bool TabControls::chooseTyped(QComboBox *list)
{
    const int entry = list->findText(list->currentText(), Qt::MatchFixedString);
    if (entry >= 0)
        list->setCurrentIndex(entry);
    return entry >= 0;
}

void TabControls::setEntries(QComboBox *list, const QStringList &entries, int current)
{
    static_cast<QStringListModel *>(list->model())->setStringList(entries);
    list->setCurrentIndex(current);
}

QListView *TabControls::makeListBox(QWidget *parent, const char *name,
                                    const QString &accessibleName)
{
    auto *list = new QListView(parent);
    setUpListBox(list, name, accessibleName);
    return list;
}

void TabControls::setUpListBox(QListView *list, const char *name, const QString &accessibleName)
{
    list->setObjectName(QLatin1StringView(name));
    list->setAccessibleName(accessibleName);
    list->setModel(new QStringListModel(list));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    list->setItemDelegate(new EqualRows(list));
}

void TabControls::setLines(QAbstractItemView *list, const QStringList &lines)
{
    static_cast<QStringListModel *>(list->model())->setStringList(lines);
}

QStringList TabControls::lines(const QAbstractItemView *list)
{
    return static_cast<const QStringListModel *>(list->model())->stringList();
}

QList<QRadioButton *> TabControls::makeOptions(QWidget *parent, const char *name, int first,
                                               const QStringList &captions)
{
    QList<QRadioButton *> options;
    for (const QString &caption : captions) {
        auto *option = new QRadioButton(caption, parent);
        option->setObjectName(QLatin1StringView(name) + u'_' +
                              QString::number(first + options.size()));
        option->setAccessibleName(spoken(caption));
        options.append(option);
    }
    return options;
}

QButtonGroup *TabControls::makeOptionGroup(QObject *owner, const char *name,
                                           const QStringList &captions)
{
    auto *group = new QButtonGroup(owner);
    for (QRadioButton *option : makeOptions(nullptr, name, 0, captions))
        group->addButton(option, int(group->buttons().size()));
    return group;
}

QPushButton *TabControls::makeButton(QWidget *parent, const char *name, const QString &caption)
{
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1StringView(name));
    button->setAccessibleName(spoken(caption));
    return button;
}

QCheckBox *TabControls::makeCheckBox(QWidget *parent, const char *name, const QString &caption)
{
    auto *box = new QCheckBox(caption, parent);
    box->setObjectName(QLatin1StringView(name));
    box->setAccessibleName(spoken(caption));
    return box;
}

LargeTextView *TabControls::makeReport(ErrorTrap &trap, QWidget *parent, const char *name,
                                       const QString &accessibleName)
{
    auto *report = new LargeTextView(trap, parent);
    report->setObjectName(QLatin1StringView(name));
    report->setAccessibleName(accessibleName);
    return report;
}
