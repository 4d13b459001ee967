#pragma once

#include "Backend/surveyreport.h"

#include <QImage>
#include <QWidget>

/// A file's map, north up, in the class colours of one of its columns.
class MapPreview : public QWidget {
    Q_OBJECT

public:
    explicit MapPreview(QWidget *parent = nullptr);

    void show(const SurveyReport &survey, const SurveyedClasses &classes);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage picture;
};
