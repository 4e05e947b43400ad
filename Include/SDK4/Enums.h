#pragma once

#include <cstdint>

// The enumerated settings. Interfaces and registers hold them as 32-bit signed numbers. Values that are specific to a
// camera model have no name here and pass through the library unchanged.

/// On or off. Some settings have more modes (automatic contrast control: 1 to 4).
enum SDK4_ENUM_SWITCH : std::int32_t {
    SDK4_SWITCH_OFF = 0,
    SDK4_SWITCH_ON = 1,
};

/// Automatic exposure time control: 0 is off. In any other mode the camera adjusts the exposure.
enum SDK4_ENUM_AET : std::int32_t { SDK4_AET_OFF = 0 };

/// Automatic gain control: 0 is off. In any other mode the camera adjusts the gain.
enum SDK4_ENUM_AGC : std::int32_t { SDK4_AGC_OFF = 0 };

/// Automatic white set: 0 is off. In any other mode the camera adjusts the colour balance.
enum SDK4_ENUM_WHITESET : std::int32_t { SDK4_WHITESET_OFF = 0 };

/// How exposures are started.
enum SDK4_ENUM_EXPOSUREMODE : std::int32_t {
    SDK4_EXPOSUREMODE_FREERUNNING = 1,
    SDK4_EXPOSUREMODE_FREERUNNING2 = 2, ///< the second free-running mode
    SDK4_EXPOSUREMODE_RESETRESTART = 3,
    SDK4_EXPOSUREMODE_FRAMEONDEMAND = 4,
};

/// How pixels are coded in the stream. Each model admits some of these.
enum SDK4_ENUM_COLORCODING : std::int32_t {
    SDK4_COLORCODING_MONO8 = 0,
    SDK4_COLORCODING_MONO10 = 2,
    SDK4_COLORCODING_MONO12 = 4,
    SDK4_COLORCODING_MONO14 = 6,
    SDK4_COLORCODING_MONO16 = 8,
    SDK4_COLORCODING_MONO10PACKED = 12,
    SDK4_COLORCODING_MONO12PACKED = 14,
    SDK4_COLORCODING_YUV422_8 = 51,
    SDK4_COLORCODING_YUV422PACKED = 52,
    SDK4_COLORCODING_RGB8 = 110,
    SDK4_COLORCODING_BGR8 = 111,
    SDK4_COLORCODING_RGBA8 = 112,
    SDK4_COLORCODING_BGRA8 = 113,
    SDK4_COLORCODING_RAW8 = 150,
    SDK4_COLORCODING_RAW12 = 151,
    SDK4_COLORCODING_RAW14 = 153,
};

/// Selects a limit of the readout area.
enum SDK4_ENUM_ROADOMAIN : std::int32_t {
    SDK4_ROADOMAIN_MIN = 0,    ///< the smallest admitted corner values
    SDK4_ROADOMAIN_MAX = 1,    ///< the largest admitted corner values
    SDK4_ROADOMAIN_ACTIVE = 2, ///< the area active in the sensor now
};

/// Selects an overlay line.
enum SDK4_ENUM_OVERLAYSELECT : std::int32_t {
    SDK4_OVERLAYSELECT_LINE1 = 0,
    SDK4_OVERLAYSELECT_LINE2 = 1,
};

/// Selects a measure window.
enum SDK4_ENUM_MEASUREWINDOWSELECT : std::int32_t {
    SDK4_MEASUREWINDOWSELECT_1 = 0,
    SDK4_MEASUREWINDOWSELECT_2 = 1,
};

enum SDK4_ENUM_HISTOEQUAL : std::int32_t { SDK4_HISTOEQUAL_OFF = 0 }; ///< histogram equalisation, 0 to 3
enum SDK4_ENUM_IOMODE : std::int32_t {};                              ///< direction of an I/O line, 0 or 1
enum SDK4_ENUM_IOPOLARITY : std::int32_t {};                          ///< polarity of an I/O line, 0 or 1
enum SDK4_ENUM_IOPORT : std::int32_t {};                              ///< what an I/O line carries, 0 to 4
enum SDK4_ENUM_LIGHTSOURCE : std::int32_t {};                         ///< light source preset, 0 to 3
enum SDK4_ENUM_LUTMODE : std::int32_t {};                             ///< look-up-table mode, 0 or 1
enum SDK4_ENUM_MFCOLOR : std::int32_t {};                             ///< colour of the measure frame
enum SDK4_ENUM_OPERATIONMODE : std::int32_t {};                       ///< operation mode as the camera reports it
enum SDK4_ENUM_PATTERN : std::int32_t { SDK4_PATTERN_OFF = 0 };       ///< pattern generator, 0 to 3
enum SDK4_ENUM_RECURSIVEFILTER : std::int32_t { SDK4_RECURSIVEFILTER_OFF = 0 }; ///< strength of the filter, 0 to 4
enum SDK4_ENUM_SETTINGS : std::int32_t {};                                      ///< number of a settings set, 0 to 2
