#pragma once

/// @file
/// Includes every header that a host needs to control a camera.
///
/// The host loads the library at run time. The library exports two functions with C linkage:
///
///     void  InitLibrary(void* registry);                                        // an IModelRegistry, or null
///     void* CreateObject(const char* model, void* port, std::int32_t index);    // an IDynamicObject, or null
///
/// InitLibrary registers the models that the library serves with the IModelRegistry of the host. CreateObject creates
/// the control of one opened camera on an SDK4::IControlPort. Pass pointers to exactly these types: a class with
/// several bases must be cast first.
///
/// The model name is the one in the camera's discovery acknowledge, which is bootstrap register 0x0068 of the GigE
/// Vision standard, 32 bytes up to the first NUL. It is compared exactly. The text must stay valid until Release.
/// CreateObject returns null for a model that the library does not serve, and for a null name. A null port is refused
/// with SDK4_ERR_INVALID_PARAMETER, for an M2VX model by CreateObject, for an Orvik model by the first access.
/// CreateObject reads an M2VX camera, and an Orvik camera if debug logging is on. If such an access throws, the
/// exception leaves CreateObject, and there is nothing to release.
///
/// The host casts the result to IDynamicObject*, reaches every other interface from it with dynamic_cast, and destroys
/// it with Release. The slot order of every interface is fixed: operations are never moved, removed or inserted.
///
/// Rules of every interface:
///
/// - **Errors.** The library throws SDK4::X4Error with an SDK4_ERR code. An exception of the port passes through
///   unchanged, and the object stays usable.
///
///   | Reason                                    | Code                       | What the camera holds then  |
///   |-------------------------------------------|----------------------------|-----------------------------|
///   | the camera does not have the function     | SDK4_ERR_NOT_IMPLEMENTED   | its old value               |
///   | the function is not available now         | SDK4_ERR_DISABLED          | its old value               |
///   | writing is locked by another setting      | SDK4_ERR_CANTSETFEATURE    | its old value               |
///   | the value is not an admitted one          | SDK4_ERR_INVALID_PARAMETER | its old value               |
///   | the value is out of range                 | SDK4_ERR_OUTOFRANGE        | the nearest admitted value! |
///
///   The Orvik family checks in the order of the table, so a lock is reported before a bad value; a value out of range
///   is reported *after* the clamped write. A bad index or a null pointer is SDK4_ERR_INVALID_PARAMETER before
///   everything else. A lock never prevents reading.
///
///   The M2VX family reports a value that is not admitted as SDK4_ERR_OUTOFRANGE, and differs elsewhere where an
///   operation says so. Only this family reports three codes: SDK4_ERR_ACQUISITIONRUNNING, SDK4_ERR_ERROR (a property
///   that does not exist), and SDK4_ERR_CANTGETFEATURE. The last means that the port returned no block for a record
///   (overlay position, style and size, measure window, defect pixel, device register), in a getter or when a setter
///   reads the record back after a value out of range; or that a defect pixel of that number does not exist.
/// - **Caching.** An Orvik control caches a value that it read or wrote until something is written that may change it;
///   a camera index of exactly 2 switches the caches off. An M2VX control uses the low four bits of the index. With 0
///   to 2 it is uncached: every call reads the camera. With 3 to 15 it is cached: the camera is read once, when it is
///   opened. After a setter has invalidated a value, its next getter reads the camera. A value that is invalidated also
///   invalidates those that depend on it. The pages of the families list what the caches do not notice.
/// - **Disabled settings.** A mode of an M2VX camera disables the settings that it does not use, and the host can
///   disable settings (IPropertyState). A cached control also refuses to read a disabled setting with
///   SDK4_ERR_DISABLED, except gain and exposure. An uncached control reads it, and treats every setting as enabled
///   until a mode is set through it.
/// - **Threads.** One thread at a time per object. The library starts no threads and takes no locks. Callbacks and port
///   accesses happen inside the call that causes them.
/// - **Texts** are valid until the next call on any object of the library, because all objects share the buffers. Do
///   not ask for texts from two threads at once, even of different objects.
/// - **Registers** are given by their address in the camera or, in IGigECamera, by that of the bootstrap register of
///   the GigE Vision standard. "Not checked" means that the value is written unchanged.

#include <SDK4/Callback.h>
#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/IACC.h>
#include <SDK4/IBasicSettings.h>
#include <SDK4/IBinning.h>
#include <SDK4/IColor.h>
#include <SDK4/IControl.h>
#include <SDK4/IControlPort.h>
#include <SDK4/IDSMediaType.h>
#include <SDK4/IDigitalEnhancement.h>
#include <SDK4/IDynamicObject.h>
#include <SDK4/IExposure.h>
#include <SDK4/IGPIO.h>
#include <SDK4/IGain.h>
#include <SDK4/IGigECamera.h>
#include <SDK4/IGigEVisionPort.h>
#include <SDK4/IGufi.h>
#include <SDK4/IInternalTests.h>
#include <SDK4/ILookUpTable.h>
#include <SDK4/IMediaType.h>
#include <SDK4/IMemory.h>
#include <SDK4/IModelRegistry.h>
#include <SDK4/IOverlay.h>
#include <SDK4/IPropertyList.h>
#include <SDK4/IPropertyState.h>
#include <SDK4/IRoa.h>
#include <SDK4/ISignalAnalysis.h>
#include <SDK4/ISignalFormat.h>
#include <SDK4/ISlowScan.h>
#include <SDK4/IStreamControl.h>
#include <SDK4/ITiming.h>
#include <SDK4/ITrigger.h>
#include <SDK4/IVideoFrame.h>
#include <SDK4/M2VX/IABC.h>
#include <SDK4/M2VX/IDefectPixel.h>
#include <SDK4/M2VX/IExposure.h>
#include <SDK4/M2VX/IGain.h>
#include <SDK4/M2VX/IImageCorrection.h>
#include <SDK4/M2VX/ILensControl.h>
#include <SDK4/M2VX/IMotorControl.h>
#include <SDK4/M2VX/IOverlay.h>
#include <SDK4/M2VX/ISignalAnalysis.h>
#include <SDK4/Records.h>
#include <SDK4/X4Error.h>
