#include "Framework/uiplugininterface.h"

UiPluginInterface::UiPluginInterface(QObject *parent)
    : QObject(parent)
{
}

UiPluginInterface::~UiPluginInterface() = default;
