#include "followcamera.h"

#include "fieldview.h"
#include "vehicle.h"

namespace {

constexpr int frameTime = 30; // Milliseconds.
constexpr double mostMetresPerPixel = 0.25;

} // namespace

FollowCamera::FollowCamera(FieldView *givenView, const Vehicle *givenVehicle, QObject *parent)
    : QObject(parent)
    , view(givenView)
    , vehicle(givenVehicle)
{
    frame.setSingleShot(true);
    frame.setInterval(frameTime);
    connect(&frame, &QTimer::timeout, this, &FollowCamera::follow);
    connect(vehicle, &Vehicle::moved, this, [this] {
        if (isFollowing && !frame.isActive())
            frame.start();
    });
    connect(view, &FieldView::movedByHand, this, [this] { setOn(false); });
}

void FollowCamera::setOn(bool isOn)
{
    if (isOn == isFollowing)
        return;
    isFollowing = isOn;
    const double scale = view->camera().metresPerPixel(view->camera().target());
    if (isOn && scale > mostMetresPerPixel)
        view->zoom(scale / mostMetresPerPixel);
    follow();
    Q_EMIT switched(isOn);
}

void FollowCamera::follow()
{
    if (isFollowing)
        view->lookAt(vehicle->position());
}
