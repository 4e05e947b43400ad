// A plug-in that requires a log4cxx which the host does not provide.

extern "C" void log4cxx_of_another_version();

extern "C" void InitLibrary(void*) { log4cxx_of_another_version(); }
