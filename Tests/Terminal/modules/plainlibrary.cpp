/// A shared library that is no plug-in.
extern "C" __attribute__((visibility("default"))) int plainLibraryAnswer()
{
    return 42;
}
