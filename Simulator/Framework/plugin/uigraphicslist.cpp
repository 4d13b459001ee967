#include "Framework/uigraphicslist.h"

UiGraphicsList::UiGraphicsList(DataBroker *dataBroker, QObject *parent)
    : QObject(parent)
    , broker(dataBroker)
{
}

// Each list deletes its own drawables, in the order that they need.
UiGraphicsList::~UiGraphicsList() = default;
