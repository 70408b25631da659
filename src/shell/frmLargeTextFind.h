#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

/// The bar at the foot of a long text in which one types what to look for. It only asks; the text
/// box searches.
class LargeTextFindBar : public QWidget
{
    Q_OBJECT

public:
    explicit LargeTextFindBar(QWidget *parent);

    QString words() const;
    void setWords(const QString &words);
    Qt::CaseSensitivity sensitivity() const;
    /// What became of the last search; empty for nothing to say.
    void setOutcome(const QString &outcome);
    /// Puts the caret into the words and selects them.
    void activate();

Q_SIGNALS:
    void nextWanted();
    void previousWanted();
    void closeWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QToolButton *addButton(const QString &name, const QString &text, const QString &accessibleName);

    QLineEdit *mWords;
    QCheckBox *mMatchCase;
    QLabel *mOutcome;
};
