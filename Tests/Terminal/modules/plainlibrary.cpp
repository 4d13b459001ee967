/// A shared library that is not a plug-in.
extern "C" __attribute__((visibility("default"))) int plainLibraryAnswer()
{
    return 42;
}
