#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class Caption;
class ListRow;
class Pager;

/// A page on which the operator chooses one of several things by a touch.
class ChoicePage : public QWidget {
    Q_OBJECT

public:
    explicit ChoicePage(QWidget *parent = nullptr);

    /// `current`: the place of the present choice, from 0.
    void ask(const QString &question, const QStringList &options, int current);
    Pager *pager() const { return pages; }

Q_SIGNALS:
    /// The place of the option.
    void chosen(int place);
    void left();

private:
    void showPage();

    Caption *title;
    QList<ListRow *> buttons;
    Pager *pages;
    QStringList texts;
    int currentPlace = -1;
};
