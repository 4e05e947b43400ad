#pragma once

#include "Host/Command.h"

namespace Host {

// The commands. Their names and parameters are in Commands.cpp.
int Check(const Invocation& invocation);
int Models(const Invocation& invocation);
int Discover(const Invocation& invocation);
int ForceIp(const Invocation& invocation);
int Info(const Invocation& invocation);
int List(const Invocation& invocation);
int Describe(const Invocation& invocation);
int Get(const Invocation& invocation);
int Set(const Invocation& invocation);
int Save(const Invocation& invocation);
int Diff(const Invocation& invocation);
int Restore(const Invocation& invocation);
int Grab(const Invocation& invocation);
int ServePanel(const Invocation& invocation);
int Watch(const Invocation& invocation);
int Peek(const Invocation& invocation);
int Poke(const Invocation& invocation);
int Start(const Invocation& invocation);
int Stop(const Invocation& invocation);
int Selftest(const Invocation& invocation);
int Shell(const Invocation& invocation);

} // namespace Host
