#pragma once

#include "Backend/mapfinding.h"

#include <QAbstractButton>

/// One finding as a row that can be touched: its kind, and right below what is said of it, on two lines if it is long.
class FindingRow : public QAbstractButton {
    Q_OBJECT

public:
    /// Pixels.
    static constexpr int rowHeight = 84;

    /// `file` is named where several maps are loaded, else empty.
    FindingRow(const MapFinding &finding, const QString &file, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString title;
};
