#pragma once

#include <QWidget>

class TouchButton;

/// Two buttons that turn the pages of a list, with the page's number between them. Hidden where there is one page only.
class Pager : public QWidget {
    Q_OBJECT

public:
    explicit Pager(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// `count` items of which `perPage` are shown at a time; goes to the first page.
    void setItems(int count, int perPage);
    /// The first item of the page that is shown.
    int first() const { return page * itemsPerPage; }
    void turn(int pages);
    /// Goes to the page that shows the item, or to the nearest one.
    void showItem(int item);

Q_SIGNALS:
    void turned();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int pages() const;
    void show(int newPage);

    TouchButton *back;
    TouchButton *forward;
    int items = 0;
    int itemsPerPage = 1;
    int page = 0;
};
