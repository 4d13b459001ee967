// The shaders lie in a static library, whose resources a program gets only if it names them.

#include <QtGlobal>

static const bool hasResources = [] {
    Q_INIT_RESOURCE(terminal);
    return true;
}();
