// What the leak check at the end of a program needs: libraries loaded at run time stay loaded, so that it can name what
// the OpenGL driver keeps.

#include <QtGlobal>

extern "C" Q_DECL_EXPORT int dlclose(void * /*handle*/)
{
    return 0;
}
