// A plug-in that asks its host for a log4cxx which the host does not bring.

extern "C" void log4cxx_of_another_version();

extern "C" void InitLibrary(void*) { log4cxx_of_another_version(); }
