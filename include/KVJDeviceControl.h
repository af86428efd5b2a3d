/// @file KVJDeviceControl.h
/// Composes low-level service commands: motors, cams, calibration, fans, sensors, clutches, the laminator and the RFID
/// antenna.
#ifndef KVJXML_KVJ_DEVICE_CONTROL_H
#define KVJXML_KVJ_DEVICE_CONTROL_H

#include <tinyxml.h>

#include "kvjxml_export.h"

/// The object is the document: each operation clears it, composes "device_control" with one element for the device, and
/// prints that into the host's buffer. One object composes any number of commands, in one thread at a time.
///
/// **Buffers.** Commands are narrow text. `capacity` is **not applied**: `out` must hold the whole command with its
/// terminator. 256 characters, and six for each character of the texts passed in, are always enough.
///
/// **Results.** True when the command was printed; false when `out` is null, or the name of a device is. A null text is
/// left out.
///
/// **Files.** Each command is also left in "/tmp/composedXML" for the service engineer, as Kavrin::KVJSetConfig leaves
/// its copy: only its owner can read it, a file of another user keeps its old content, and failures are silent. Of
/// several objects at the same time the last leaves its command, whole. Without `out` nothing is left.
///
/// **Size.** Hosts are compiled with the size of the object, so it stays as it is.
class KVJXML_API KVJDeviceControl : public TiXmlDocument {
public:
    /// A motor by its number: 0 "card_feed", 1 "card_x", 2 "ribbon", 3 "head_lift", 4 "options", 5 "flipper"; any other
    /// gives a "motor" without text.
    /// @param state      1 turns it on, any other value off, with no attribute but "state".
    /// @param direction  0 "forward", any other value "reverse": the opposite sense of the other motor command.
    /// @param speed      in the printer's unit; the ribbon's motor takes none.
    bool RunMotorCommand(int state, int direction, int speed, int motor, char* out, int capacity);
    /// A motor by what it is to do.
    /// @param name     has no effect.
    /// @param mode     0 off; 1 on, with "direction" and "speed"; 2 warm up, with "rpm" and "period"; any other gives
    ///                 an empty "motor".
    /// @param period   in the printer's unit.
    /// @param rpm      revolutions per minute, with one decimal.
    /// @param speed    in the printer's unit.
    /// @param forward  true "forward", false "reverse".
    bool RunMotorCommand(char* name, int mode, int period, float rpm, int speed, bool forward, char* out, int capacity);
    /// A cam, its name and its state as the printer knows them.
    bool RunCamCommand(char* cam, char* state, char* out, int capacity);
    /// A calibration.
    /// @param name  has no effect.
    /// @param calibration  1 "low" and 2 "high", both with "torque" and "rpm"; 3 "calc", 4 "mot_cur_off",
    ///                     5 "mot_cur_on", 6 "save_cal"; any other gives an empty "calibrate".
    /// @param torque, rpm  with one decimal, in the printer's units.
    bool RunCalibrateCommand(char* name, int calibration, float torque, float rpm, char* out, int capacity);
    /// Any other device, by the name of its element; not null.
    /// @param text   the element's text. Of the "laminator", "scal", "scal 1" and "scal 2" are written as "scal" with
    ///               the "spool" "both", "top" and "bottom"; of the "radio", "scan" gets one iteration.
    /// @param panel  of "advance" only.
    /// @param on     of "fan", "sensor" and "clutch" only.
    bool RunOtherCommands(char* device, char* text, char* panel, bool on, char* out, int capacity);
    /// An RFID device, by the name of its element; not null.
    /// @param mode     0 "off", 1 "on", 2 "modulate"; any other gives an element without text.
    /// @param antenna  the antenna's number, of "rfid" only.
    bool RunRFIDCommands(char* device, int mode, int antenna, char* out, int capacity);

    /// Prints the last command again, and leaves it in the file.
    bool saveJob(char* out, int capacity);
    /// Saves the last command to the file `path`. False when that is null or cannot be written.
    bool saveJob(char* path);

private:
    TiXmlElement* root_ = nullptr;  ///< Of the last command; the document owns it.
};

#endif
