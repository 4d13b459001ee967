#pragma once

#include <QObject>
#include <QTimer>

class FieldView;
class Vehicle;

/// Keeps the vehicle in the middle of the view until the operator moves the view by hand.
class FollowCamera : public QObject {
    Q_OBJECT

public:
    /// Neither is owned; both outlive the camera.
    FollowCamera(FieldView *view, const Vehicle *vehicle, QObject *parent = nullptr);

    bool isOn() const { return isFollowing; }
    /// Switches following on or off; when on, comes near enough to show the implement's swath.
    void setOn(bool isOn);

Q_SIGNALS:
    void switched(bool isOn);

private:
    void follow();

    FieldView *view;
    const Vehicle *vehicle;
    bool isFollowing = false;
    QTimer frame;
};
