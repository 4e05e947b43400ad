#pragma once

// Everything a host needs to drive a camera.

#include <SDK4/Enums.h>
#include <SDK4/Export.h>
#include <SDK4/IACC.h>
#include <SDK4/IBasicSettings.h>
#include <SDK4/IBinning.h>
#include <SDK4/IColor.h>
#include <SDK4/IControl.h>
#include <SDK4/IControlPort.h>
#include <SDK4/IDigitalEnhancement.h>
#include <SDK4/IDSMediaType.h>
#include <SDK4/IDynamicObject.h>
#include <SDK4/IExposure.h>
#include <SDK4/IGain.h>
#include <SDK4/IGigECamera.h>
#include <SDK4/IGigEVisionPort.h>
#include <SDK4/IGPIO.h>
#include <SDK4/IGufi.h>
#include <SDK4/IInternalTests.h>
#include <SDK4/ILookUpTable.h>
#include <SDK4/IMediaType.h>
#include <SDK4/IMemory.h>
#include <SDK4/IModelRegistry.h>
#include <SDK4/IOverlay.h>
#include <SDK4/IRoa.h>
#include <SDK4/ISignalAnalysis.h>
#include <SDK4/ISignalFormat.h>
#include <SDK4/ISlowScan.h>
#include <SDK4/IStreamControl.h>
#include <SDK4/ITiming.h>
#include <SDK4/ITrigger.h>
#include <SDK4/IVideoFrame.h>
#include <SDK4/Records.h>
#include <SDK4/X4Error.h>
