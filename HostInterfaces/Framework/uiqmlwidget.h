#pragma once

#include "Framework/frameworkglobal.h"

#include <QObject>

/// A guidance-page widget written in QML.
class FRAMEWORK_EXPORT UiQmlWidget : public QObject {
    Q_OBJECT

public:
    explicit UiQmlWidget(QObject *parent = nullptr);
    ~UiQmlWidget() override;
};
