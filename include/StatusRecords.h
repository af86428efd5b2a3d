/// @file StatusRecords.h
/// What the printer reports about itself: the records that KVJStatusParser and KVJSensorParser fill.
///
/// Records are plain structures. The host owns them and sets them to zero before the first call; a reader never clears
/// one, so a field whose element is not in the reply keeps its value.
#ifndef KVJXML_STATUS_RECORDS_H
#define KVJXML_STATUS_RECORDS_H

// Names with a leading underscore or capital are the ones that host applications know these records by.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// One loaded medium, a part of MediaStatus. Diameters and sizes are in the printer's own units.
struct _MediaStatusInfo {
    /// "type": the printer's number for the medium. Of a laminate it stays as it was.
    int type;
    /// Ribbon and film: ribbon code of "description", see KVJHelper::RibbonNameToInt; of the ribbon also that of
    /// "sequence", see KVJHelper::RibbonDescriptionToInt; the later of the two counts. Laminates: the number in "type".
    int code;
    /// "description": text. Of the ribbon also the words of each "sequence" / "panel", **appended** to what is there.
    char description[32];
    /// "part_number": text, of the ribbon only.
    char partNumber[32];
    /// "oem_country": text.
    char oemCountry[8];
    /// "initial_size": panels when new.
    int initialSize;
    /// "panels_remaining", of the ribbon also "ribbon_remaining": panels left; the later of the two counts.
    int panelsRemaining;
    /// "diam_ribbon_payout": diameter of the supply roll, of ribbon and film only.
    float payoutDiameter;
    /// "diam_ribbon_takeup": diameter of the take-up roll, of ribbon and film only.
    float takeupDiameter;
};

/// What is loaded in the printer: the reply "get_media_status", read by Kavrin::KVJStatusParser::ParseMediaStatus.
struct MediaStatus {
    /// "ribbon".
    _MediaStatusInfo ribbon;
    /// Never written.
    int reserved;
    /// "film": the transfer film.
    _MediaStatusInfo film;
    /// "top_laminate".
    _MediaStatusInfo topLaminate;
    /// "bottom_laminate".
    _MediaStatusInfo bottomLaminate;
};

namespace Kavrin {

/// What the printer as a whole is doing: the reply "get_general_status", read by KVJStatusParser::ParseStatus.
struct KVGeneralStatus {
    /// "printer_state": code of the word, see KVJStatusParser::printerStateToInt; 38 for an unknown word.
    int printerState;
    /// "alarms": alarm bits, the printer's own. Read only from a text that begins with "0x", "0x8000" as 32768.
    unsigned int alarms;
    /// "error": the printer's error number, decimal.
    int error;
    /// "printer_lock": true for exactly "locked".
    bool printerLock;
    /// "num_jobs_receiving_or_pending": count of jobs.
    int jobsReceivingOrPending;
    /// "num_jobs_inprogress": count of jobs.
    int jobsInProgress;
    /// "num_jobs_done_ok": count of jobs.
    int jobsDoneOk;
    /// "num_jobs_done_error": count of jobs.
    int jobsDoneError;
    /// "num_jobs_total": count of jobs.
    int jobsTotal;
    /// "action_id_next": the action id that the next job will get.
    int actionIdNext;
    /// "warning": the printer's warning number, decimal.
    int warning;
    /// "laminator_state": code of the word, see KVJStatusParser::lamStateToInt; 0 for an unknown word.
    int laminatorState;
    /// "param_chg_counter": how often a setting was changed; a 16-bit counter, 65537 reads as 1.
    unsigned long paramChangeCounter;
};

/// How far one job has come: the reply "get_job_status", read by KVJStatusParser::ParseJobStatus.
struct KVJobStatus {
    /// "action_id": the job's action id, a 16-bit number, 70000 reads as 4464.
    unsigned long actionId;
    /// "uuid": the job's identifier, terminated. A longer text is cut to 39 characters and that read reports false.
    char uuid[40];
    /// "ready_for_next_job": true for exactly "yes".
    bool readyForNextJob;
    /// "status_printing" / "copies_done": cards printed of this job.
    int copiesDone;
    /// "status_printing" / "copies_total_specified": cards that the job asks for.
    int copiesTotalSpecified;
    /// "status_printing" / "error_code": the printer's error number, its low 16 bits.
    unsigned short errorCode;
    /// "status_printing" / "print_state": code of the word, see KVJStatusParser::jobStatusToInt; -1 for an unknown one.
    int printState;
    /// "mag_state" in any of the groups "status_mag", "status_contact" and "status_contactless": state of the magnetic
    /// encoding, see KVJStatusParser::jobStatusToInt; -1 for an unknown word.
    int magState;
    /// "contact_state" in any of those groups: state of the contact chip's encoding, codes as for magState.
    int contactState;
    /// "contactless_state" in any of those groups: state of the contactless chip's encoding, codes as for magState.
    int contactlessState;
    /// "status_printing" / "position_in_transport": where the card is, codes as for printState.
    int positionInTransport;
    /// "status_printing" / "laminator_state": code of the word, see KVJStatusParser::lamStateToInt; 0 for an unknown
    /// one.
    int laminatorState;
};

/// One job of a KVJobList.
struct _KVJobInfo {
    /// "action_id": the job's action id, a 16-bit number.
    unsigned long actionId;
    /// "uuid": the job's identifier, terminated. A longer text is cut to 39 characters and that read reports false.
    char uuid[40];
    /// "print_state": code of the word, see KVJStatusParser::jobStatusToInt; -1 for an unknown one.
    int printState;
};

/// How many jobs a KVJobList holds at most.
constexpr int KVJOBLIST_CAPACITY = 64;

/// The jobs that the printer holds: the reply "get_job_list", read by KVJStatusParser::ParseJobList.
struct KVJobList {
    /// In: how many entries of `jobs` may be filled; more than KVJOBLIST_CAPACITY count as that. Out: how many were
    /// filled. Jobs beyond that are dropped without notice.
    int count;
    /// "job": filled from index 0 on, in the order of the reply.
    _KVJobInfo jobs[KVJOBLIST_CAPACITY];
};

/// The card counters: the reply "get_count", read by KVJStatusParser::ParseCardCount. All are 16-bit counters, 70000
/// reads as 4464.
struct KVCardCount {
    /// "total_cards_done": cards that the printer made.
    unsigned long totalCardsDone;
    /// "laminator_cards_laminated": cards that the laminator laminated.
    unsigned long laminatorCardsLaminated;
    /// "laminator_cards_processed": cards that went through the laminator.
    unsigned long laminatorCardsProcessed;
};

/// How long the laminator has been on: the reply "get_laminator_up_times", read by KVJStatusParser::ParseUpTime. All
/// are 16-bit counters in the printer's own unit.
struct KVUpTimes {
    /// "laminator_total_up_time".
    unsigned long laminatorTotalUpTime;
    /// "laminator_top_bulb_on_time".
    unsigned long laminatorTopBulbOnTime;
    /// "laminator_bottom_bulb_on_time".
    unsigned long laminatorBottomBulbOnTime;
};

/// Free memory: the replies "get_free_ram" and "get_free_flash", read by KVJStatusParser::GetPrinterFreeSpace and
/// KVJStatusParser::GetFlashFreeSpace.
struct __MEMORY {
    /// "bytes_free": in bytes.
    unsigned int bytesFree;
};

/// How far a cleaning has come: the reply "get_cleaning_status", read by KVJStatusParser::ParseCleaningStatus.
struct KVCleaningStatus {
    /// "cleaning_status": code of the word, see KVJStatusParser::cleaningStateToInt; 10 for an unknown one.
    int cleaningState;
};

/// Switches and analogue readings: the reply "get_sensor_status", read by KVJStatusParser::ParseSensorStatus. A flag is
/// true for **any** text but its one off-word, so a sensor that reports an unexpected word reads as set; without text
/// it stays as it was. Readings are in the printer's own units.
struct _SENSOR {
    /// "sensor_states" / "ribbon_takeup_encoder": text.
    char ribbonTakeupEncoder[32];
    /// "sensor_states" / "door_open": false for exactly "no".
    bool doorOpen;
    /// "sensor_states" / "flipoptions_door_open": false for exactly "no".
    bool flipOptionsDoorOpen;
    /// "sensor_states" / "flipper_card_blocked": false for exactly "no".
    bool flipperCardBlocked;
    /// "sensor_states" / "flipper_rotation_blocked": false for exactly "no".
    bool flipperRotationBlocked;
    /// "sensor_states" / "cardout_sensor_set": false for exactly "no".
    bool cardOutSensorSet;
    /// "sensor_states" / "option_mag_blocked": false for exactly "no".
    bool optionMagBlocked;
    /// "sensor_states" / "option_cam_blocked": false for exactly "no".
    bool optionCamBlocked;
    /// "sensor_states" / "card_exit_blocked": false for exactly "no".
    bool cardExitBlocked;
    /// "sensor_states" / "card_edge_blocked": false for exactly "no".
    bool cardEdgeBlocked;
    /// "sensor_states" / "tricolor_state": text.
    char tricolorState[32];
    /// "sensor_states" / "head_cam_blocked": false for exactly "no".
    bool headCamBlocked;
    /// "sensor_states" / "tricolor_error": decimal.
    int tricolorError;
    /// "sensor_states" / "printhead_fan": false for exactly "off".
    bool printheadFan;
    /// "sensor_values" / "voltage_24": with a decimal point.
    float voltage24;
    /// "sensor_values" / "voltage_raw": decimal.
    int voltageRaw;
    /// "sensor_values" / "mag_track_1": decimal.
    int magTrack1;
    /// "sensor_values" / "mag_track_2": decimal.
    int magTrack2;
    /// "sensor_values" / "mag_track_3": decimal.
    int magTrack3;
    /// "sensor_values" / "print_head_temp": decimal.
    int printHeadTemp;
    /// "sensor_values" / "mag_head_type": decimal.
    int magHeadType;
    /// "sensor_values" / "ribbon_bemf": back-EMF of the ribbon motor, decimal.
    int ribbonBemf;
    /// "sensor_values" / "tricolor_any": decimal.
    int tricolorAny;
    /// "sensor_values" / "tricolor_red": decimal.
    int tricolorRed;
    /// "sensor_values" / "tricolor_green": decimal.
    int tricolorGreen;
    /// "sensor_values" / "tricolor_blue": decimal.
    int tricolorBlue;
    /// "sensor_values" / "platen_temp128": decimal.
    int platenTemp128;
    /// "sensor_values" / "RLEC": calibration value, decimal.
    int rlec;
    /// "sensor_values" / "RSEC": calibration value, decimal.
    int rsec;
    /// "sensor_values" / "RLDC": calibration value, decimal.
    int rldc;
    /// "sensor_values" / "RSDC": calibration value, decimal.
    int rsdc;
    /// "sensor_values" / "RGSU": calibration value, decimal.
    int rgsu;
    /// "sensor_values" / "RGSD": calibration value, decimal.
    int rgsd;
};

/// The raw reading of every sensor: the reply "get_sensor_status", read by KVJSensorParser::ParseSensorInfo. Each is an
/// integer attribute of its element, "reading" unless another is named; the element's text does not count. Readings are
/// in the printer's own units.
struct KVSensorInfo {
    /// "input_output" / "atm_card_present".
    int atmCardPresent;
    /// "input_output" / "input_feeder".
    int inputFeeder;
    /// "input_output" / "output_hopper".
    int outputHopper;
    /// "card_path" / "synchro_card".
    int synchroCard;
    /// "card_path" / "synchro_mag".
    int synchroMag;
    /// "card_path" / "synchro_contact".
    int synchroContact;
    /// "card_path" / "synchro_contactless".
    int synchroContactless;
    /// "card_path" / "flipper_card_present".
    int flipperCardPresent;
    /// "doors" / "head_open".
    int headOpen;
    /// "doors" / "input_media_open".
    int inputMediaOpen;
    /// "doors" / "output_media_open".
    int outputMediaOpen;
    /// "positioning" / "head_down".
    int headDown;
    /// "positioning" / "flipper_ready_in".
    int flipperReadyIn;
    /// "positioning" / "flipper_ready_out".
    int flipperReadyOut;
    /// "web_media" / "ribbon" / "encoder".
    int ribbonEncoder;
    /// "web_media" / "ribbon" / "ribbon_sync_detection": attribute "adc_value".
    int ribbonSyncDetection;
    /// "web_media" / "ribbon" / "color" / "led_1".
    int ribbonColorLed1;
    /// "web_media" / "ribbon" / "color" / "led_2".
    int ribbonColorLed2;
    /// "web_media" / "ribbon" / "color" / "led_3".
    int ribbonColorLed3;
    /// "web_media" / "intm" / "film_sensor".
    int filmSensor;
    /// "web_media" / "intm" / "supply_motor_pulses": attribute "count".
    int supplyMotorPulses;
    /// "web_media" / "intm" / "takeup_encoder_pulses": attribute "count".
    int takeupEncoderPulses;
};

/// The state words of the sensors as the printer sends them: the reply "get_sensor_status", read by
/// KVJSensorParser::ParseSensorStates. Each is the text of its element in "sensor_states", terminated; one that does
/// not fit is cut to the size of its field, and that read reports false.
struct _KVPrinterSensorInfo {
    char ribbonTakeupEncoder[8];     ///< "ribbon_takeup_encoder"
    char ribbonPayoutEncoder[8];     ///< "ribbon_payout_encoder"
    char doorOpen[4];                ///< "door_open"
    char feederDoorOpen[4];          ///< "feeder_door_open"
    char flipperSensorBlocked[4];    ///< "flipper_sensor_blocked"
    char cardInFlipper[4];           ///< "card_in_flipper"
    char outOfCards[4];              ///< "out_of_cards"
    char optionCamState[8];          ///< "option_cam_state"
    char optionCardMotion[4];        ///< "option_card_motion"
    char optionMagBlocked[4];        ///< "option_mag_blocked"
    char internalEncoderPresent[4];  ///< "internal_encoder_present"
    char externalEncoderPresent[4];  ///< "external_encoder_present"
    char uhfEncoderPresent[4];       ///< "uhf_encoder_present"
    char pusherPlateBlocked[4];      ///< "pusher_plate_blocked"
    char feederMode[8];              ///< "feeder_mode"
    char optionCamBlocked[4];        ///< "option_cam_blocked"
    char cardEdgeBlocked[4];         ///< "card_edge_blocked"
    char tricolorState[16];          ///< "tricolor_state"
    char headCamBlocked[4];          ///< "head_cam_blocked"
    char printheadFan[4];            ///< "printhead_fan"
};

/// Traffic in one direction, a part of _tagWirelessStatus; counts of the printer's network card.
struct _tagPackets {
    int octets;    ///< "octets"
    int upkts;     ///< "upkts": unicast packets
    int nupkts;    ///< "nupkts": non-unicast packets
    int discards;  ///< "discards"
    int errors;    ///< "errors"
};

/// The state of the wireless link: the reply "get_wireless_status", read by KVJStatusParser::ParseWirelessStatusXML.
struct _tagWirelessStatus {
    /// "state": code of the word, see KVJStatusParser::GetWirelessState; 0 for an unknown one.
    int state;
    /// "ssid": text.
    char ssid[32];
    /// "channel": decimal.
    int channel;
    /// "rssi": signal strength, in the printer's unit.
    int rssi;
    /// "snr": signal-to-noise ratio, in the printer's unit.
    int snr;
    /// "nf": noise floor, in the printer's unit.
    int nf;
    /// "security": code of the word, see KVJStatusParser::GetSecurity, **OR-ed into** what is there.
    unsigned int security;
    /// "crypto": code of the word, see KVJStatusParser::GetCrypto, **OR-ed into** what is there.
    unsigned int crypto;
    /// "rate": in the printer's unit.
    int rate;
    /// "in": received traffic.
    _tagPackets in;
    /// "out": transmitted traffic.
    _tagPackets out;
    /// "link_lost": how often the link was lost.
    int link_lost;
};

/// Counters of the radio: the reply "get_wireless_radio_status", read by KVJStatusParser::ParseWirlessRadioXML.
struct _tagWirelessRadioStatus {
    int mcasttxframe;  ///< "mcasttxframe"
    int failed;        ///< "failed"
    int retry;         ///< "retry"
    int multiretry;    ///< "multiretry"
    int framedup;      ///< "framedup"
    int rtssuccess;    ///< "rtssuccess"
    int rtsfailure;    ///< "rtsfailure"
    int ackfailure;    ///< "ackfailure"
    int rxfrag;        ///< "rxfrag"
    int mcastrxframe;  ///< "mcastrxframe"
    int fcserror;      ///< "fcserror"
    int txframe;       ///< "txframe"
    int tx_success;    ///< "tx_success"
    int tx_retry;      ///< "tx_retry"
    int rx_success;    ///< "rx_success"
    int rx_duplicate;  ///< "rx_duplicate"
    int rts_success;   ///< "rts_success"
};

/// One access point that the printer sees, an entry of _tagAccessPoints.
struct _tagAccessPoint {
    /// "SSID": text.
    char SSID[34];
    /// "BSSID": hardware address, six bytes.
    unsigned char BSSID[6];
    /// "Selected": true for exactly "true".
    bool Selected;
    /// "Channel": decimal.
    int Channel;
    /// "Privacy": decimal.
    int Privacy;
    /// "SignalStrength": in the printer's unit.
    int SignalStrength;
    /// "Infrastructure": true for exactly "true".
    bool Infrastructure;
    /// "Security": code of the word, see KVJStatusParser::GetSecurity, **OR-ed into** what is there.
    unsigned int Security;
    /// "Encryption": code of the word, see KVJStatusParser::GetCrypto, **OR-ed into** what is there.
    unsigned int Encryption;
    /// "MaxDataRate": in the printer's unit.
    int MaxDataRate;
};

/// The access points that the printer sees: the reply "AccessPoints", read by KVJStatusParser::ParseAccessPoints in two
/// calls.
struct _tagAccessPoints {
    /// "AccessPoint": an array of the host's, or null to ask for its size only. With a `count` of 0 it must hold as
    /// many entries as the reply has elements.
    _tagAccessPoint* accessPoints;
    /// In: the capacity of the array, when it is above 0. Out: how many elements the reply has, of whatever name, which
    /// is no less than there are access points; of a reply of more than the capacity, the capacity.
    unsigned int count;
};

}  // namespace Kavrin

// NOLINTEND(bugprone-reserved-identifier)

#endif
