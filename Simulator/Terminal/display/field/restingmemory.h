#pragma once

#include <QObject>
#include <QTimer>

class QOpenGLWidget;

/// Gives back the memory that loading and drawing have left behind, once a view has not been drawn for a second.
class RestingMemory : public QObject {
    Q_OBJECT

public:
    /// `view` is not owned and outlives this object.
    explicit RestingMemory(QOpenGLWidget *view);

private:
    void giveBack();

    QOpenGLWidget *view;
    QTimer rest;
};
