#include "mappreview.h"

#include "fieldscene.h"
#include "theme.h"

#include <QPainter>

MapPreview::MapPreview(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("openMap"));
    setAccessibleName(tr("Map of the file"));
    setFixedSize(SurveyReport::pictureSide + 2 * Theme::margin, SurveyReport::pictureSide + 2 * Theme::margin);
}

void MapPreview::show(const SurveyReport &survey, const SurveyedClasses &classes)
{
    const QRgb ground = FieldScene::groundColor().rgb();
    picture = QImage(survey.pictureSize, QImage::Format_RGB32);
    picture.fill(ground);
    QVector<QRgb> colors;
    for (const OrvikTypes::RX_RATECOLOR &entry : classes.legend)
        colors.append(entry.color.alpha() == 0 ? ground : FieldScene::onGround(entry.color).rgb());
    int pixel = 0;
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int record = survey.recordAtPixel.at(pixel++);
            if (record >= 0)
                line[x] = colors.value(classes.ofRecords.at(record), ground);
        }
    }
    update();
}

void MapPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), FieldScene::groundColor());
    painter.drawImage(rect().center() - picture.rect().center(), picture);
}
