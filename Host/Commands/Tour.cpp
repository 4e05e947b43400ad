#include "Tour/Tour.h"

#include "Commands.h"

#include <iostream>

namespace Host {

int RunTour(const Invocation& invocation) {
    CameraOptions options = invocation.Program().Options().camera;
    options.index = 0;          // the tour shows what the caches save
    options.accesses = nullptr; // and every access
    Session session(invocation.Program().LoadedPlugin(), invocation.Text(modelParameter), options);
    session.Connection().RequireControl();
    const bool asExpected = Tour(session, std::cout).Run();
    session.Connection().RequireUnbroken();
    return asExpected ? AllWell : Refused;
}

} // namespace Host
