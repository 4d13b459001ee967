// Libraries loaded at run time stay loaded to the end, so that the leak check can name what the OpenGL driver keeps.

#include <QtGlobal>

extern "C" Q_DECL_EXPORT int dlclose(void * /*handle*/)
{
    return 0;
}
