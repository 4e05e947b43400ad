#pragma once

/// @file
/// Everything a host needs to drive a camera.
///
/// The library is loaded at run time and exports two plain functions:
///
///     void  InitLibrary(void* registry);                                        // an IModelRegistry, or null
///     void* CreateObject(const char* model, void* port, std::int32_t index);    // an IDynamicObject, or null
///
/// InitLibrary tells the registry which models the library serves. CreateObject builds the control of one opened camera
/// over an SDK4::IControlPort; it answers null for a model that it does not serve (a null name is one). The model name
/// is what the camera calls itself, letter by letter: the model name of its discovery acknowledge, which is bootstrap
/// register 0x0068 of the GigE Vision standard, 32 bytes up to the first NUL. The text must live as long as the
/// control. A null port is refused with SDK4_ERR_INVALID_PARAMETER, for an M2VX model by CreateObject, for an Orvik
/// model by the first access. What fails while a camera is read (M2VX, or Orvik with debug logging) reaches the host
/// from CreateObject, and there is nothing to give back then. The host casts the result to IDynamicObject*, reaches
/// every other interface from it with dynamic_cast, and gives it back with Release. The slot order of every interface
/// is fixed: operations are never moved, removed or inserted.
///
/// Rules of every interface, told here once:
///
/// - **Errors.** Every refusal is an SDK4::X4Error with one SDK4_ERR code. An exception of the port passes through
///   unchanged and the object stays usable.
///
///   | Reason                                    | Code                       | What the camera holds then  |
///   |-------------------------------------------|----------------------------|-----------------------------|
///   | the camera does not have the function     | SDK4_ERR_NOT_IMPLEMENTED   | what it held                |
///   | it has it, but not in its present state   | SDK4_ERR_DISABLED          | what it held                |
///   | writing is locked by another setting      | SDK4_ERR_CANTSETFEATURE    | what it held                |
///   | the value is not one of those admitted    | SDK4_ERR_INVALID_PARAMETER | what it held                |
///   | the value lies outside its range          | SDK4_ERR_OUTOFRANGE        | the nearest admitted value! |
///
///   The Orvik family checks in the order of the table, so a lock is reported before a bad value; a value out of range
///   is reported *after* the clamped write. A bad index or a null pointer is SDK4_ERR_INVALID_PARAMETER before
///   everything else. Reading is never refused for a lock. The M2VX family reports a value that is not admitted as
///   SDK4_ERR_OUTOFRANGE, and differs otherwise where an operation says so. It alone also reports
///   SDK4_ERR_ACQUISITIONRUNNING, SDK4_ERR_ERROR (a property that does not exist), and SDK4_ERR_CANTGETFEATURE when the
///   port delivers no block for a record (overlay position, style and size, measure window, defect pixel, device
///   register), also when that is read back after a value out of range was written.
/// - **Caching.** The Orvik family remembers what it read or wrote until something that may change it is written; a
///   camera index of exactly 2 switches the caches off. The M2VX family looks at the low four bits of the index: 0 to 2
///   reads the camera on every call, more reads it once when it is opened: "remembers" below. Values noted "read
///   afresh" are fetched from the camera by the next read, and so is all that is noted as read afresh after them. The
///   pages of the families tell the traps.
/// - **Disabled settings.** A mode of an M2VX camera disables what it does not use, and so may the host
///   (IPropertyState). A control that remembers then refuses to read it too, with SDK4_ERR_DISABLED, except gain and
///   exposure; one that reads through reads it, and counts everything as enabled until a mode is set through it.
/// - **Threads.** One thread at a time per object. The library starts none and takes no locks; callbacks and port
///   accesses happen inside the call that causes them.
/// - **Texts** are valid until the next call on any object of the library: they lie in buffers that all objects share.
///   Do not ask for texts from two threads at once, even of different objects.
/// - **Registers** are given by their address in the camera or, in IGigECamera, by that of the bootstrap register of
///   the GigE Vision standard. "Not checked" means that the value goes to the camera as it is.

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
