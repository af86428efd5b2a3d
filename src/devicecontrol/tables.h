/// @file devicecontrol/tables.h
/// The words of the service commands by the numbers that hosts pass.
#ifndef KVJXML_DEVICECONTROL_TABLES_H
#define KVJXML_DEVICECONTROL_TABLES_H

#include "foundation/words.h"

namespace kvj::devicecontrol {

inline constexpr WordTable motors(
    {{"card_feed", 0}, {"card_x", 1}, {"ribbon", 2}, {"head_lift", 3}, {"options", 4}, {"flipper", 5}});

inline constexpr int ribbonMotor = 2;

/// What a motor is to do.
inline constexpr WordTable motorModes({{"off", 0}, {"on", 1}, {"warm_up", 2}});

inline constexpr int motorOn = 1;
inline constexpr int motorWarmUp = 2;

/// The motors that the printer expects a distance for, which is always 0.
constexpr bool hasDistance(int motor) { return motor == 1 || motor == 3; }

inline constexpr WordTable calibrations(
    {{"low", 1}, {"high", 2}, {"calc", 3}, {"mot_cur_off", 4}, {"mot_cur_on", 5}, {"save_cal", 6}});

/// The calibrations that take a torque and a speed of their own.
constexpr bool hasTorque(int calibration) { return calibration == 1 || calibration == 2; }

/// The devices that are switched on and off.
inline constexpr WordTable switchedDevices({{"fan", 1}, {"sensor", 2}, {"clutch", 3}});

/// The spool of the laminator by the text that hosts pass for it; the text itself becomes "scal".
inline constexpr WordTable spoolTexts({{"scal", 0}, {"scal 1", 1}, {"scal 2", 2}});
inline constexpr WordTable spools({{"both", 0}, {"top", 1}, {"bottom", 2}});

inline constexpr WordTable rfidModes({{"off", 0}, {"on", 1}, {"modulate", 2}});

}  // namespace kvj::devicecontrol

#endif
