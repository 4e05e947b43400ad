#pragma once

#include "OrvikControlImpl/KBasicSettings.h"
#include "OrvikControlImpl/KBinning.h"
#include "OrvikControlImpl/KColor.h"
#include "OrvikControlImpl/KDigitalEnhancement.h"
#include "OrvikControlImpl/KExposure.h"
#include "OrvikControlImpl/KGPIO.h"
#include "OrvikControlImpl/KGain.h"
#include "OrvikControlImpl/KGigECamera.h"
#include "OrvikControlImpl/KGigEVisionPort.h"
#include "OrvikControlImpl/KGufi.h"
#include "OrvikControlImpl/KInternalTests.h"
#include "OrvikControlImpl/KLookupTable.h"
#include "OrvikControlImpl/KMemory.h"
#include "OrvikControlImpl/KOverlay.h"
#include "OrvikControlImpl/KRoa.h"
#include "OrvikControlImpl/KSignalAnalysis.h"
#include "OrvikControlImpl/KSignalFormat.h"
#include "OrvikControlImpl/KSlowScan.h"
#include "OrvikControlImpl/KStreamControl.h"
#include "OrvikControlImpl/KTiming.h"
#include "OrvikControlImpl/KTrigger.h"
#include "VideoFrame.h"

#include <SDK4/IControl.h>
#include <SDK4/IDSMediaType.h>
#include <SDK4/IDynamicObject.h>

#include <cstdint>

namespace SDK4::Control {

/// The control of an Orvik camera: one capability class for each interface, with a common feature list and register
/// list. The order of the bases is the order in which they are constructed and declare their registers.
class COrvikFeatureCtrl final : public IDynamicObject,
                                public IControl,
                                public KStreamControl,
                                public IDSMediaType,
                                public KGigEVisionPort,
                                public KGigECamera,
                                public KGain,
                                public KSignalFormat,
                                public KSlowScan,
                                public KTiming,
                                public KDigitalEnhancement,
                                public KColor,
                                public KOverlay,
                                public KGufi,
                                public KExposure,
                                public KRoa,
                                public KSignalAnalysis,
                                public KInternalTests,
                                public KBasicSettings,
                                public KBinning,
                                public KLookupTable,
                                public KTrigger,
                                public KMemory,
                                public KGPIO {
public:
    /// Index of an uncached control; any other index caches. All 32 bits count.
    static constexpr std::int32_t uncachedIndex = 2;

    /// Takes ownership of both lists when the constructor returns. If it throws, they stay with the caller.
    /// @param model the caller's text, which must live as long as the control
    /// @param id the caller's text that GetClassID returns
    COrvikFeatureCtrl(CFeatureList* featureList, CRegisterList* registerList, IControlPort* controlPort,
                      std::int32_t cameraIndex, const char* model, const char* id);

    void Release() override;
    ~COrvikFeatureCtrl() override;
    const char* GetClassID() override;
    IMediaType* GetMediaType() override { return mediaType; }

private:
    COrvikFeatureCtrl(CFeatureList* featureList, CRegisterList* registerList, IControlPort* controlPort, bool noCache,
                      std::int32_t cameraIndex, const char* model, const char* id);

    const char* classId;
    const char* modelName;
    CQDV12VideoFrame* mediaType; ///< never freed: the host may keep it longer than the control
    [[maybe_unused]] std::int32_t index;
    [[maybe_unused]] IControlPort* port; ///< the host's
    CFeatureList* features;              ///< owned
    CRegisterList* registers;            ///< owned
};

} // namespace SDK4::Control
