#include "Framework/uiqmlwidget.h"

UiQmlWidget::UiQmlWidget(QObject *parent)
    : QObject(parent)
{
}

UiQmlWidget::~UiQmlWidget() = default;
