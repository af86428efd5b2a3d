// The layout of the status records is a contract with hosts that were built against an earlier release.
#include <cstddef>

#include "StatusRecords.h"

using Kavrin::__MEMORY;
using Kavrin::_KVJobInfo;
using Kavrin::_tagAccessPoint;
using Kavrin::_tagAccessPoints;
using Kavrin::_tagPackets;
using Kavrin::_tagWirelessRadioStatus;
using Kavrin::_tagWirelessStatus;
using Kavrin::KVCardCount;
using Kavrin::KVCleaningStatus;
using Kavrin::KVGeneralStatus;
using Kavrin::KVJobList;
using Kavrin::KVJOBLIST_CAPACITY;
using Kavrin::KVJobStatus;
using Kavrin::KVUpTimes;

static_assert(sizeof(KVGeneralStatus) == 56);
static_assert(offsetof(KVGeneralStatus, printerState) == 0);
static_assert(offsetof(KVGeneralStatus, alarms) == 4);
static_assert(offsetof(KVGeneralStatus, error) == 8);
static_assert(offsetof(KVGeneralStatus, printerLock) == 12);
static_assert(offsetof(KVGeneralStatus, jobsReceivingOrPending) == 16);
static_assert(offsetof(KVGeneralStatus, jobsInProgress) == 20);
static_assert(offsetof(KVGeneralStatus, jobsDoneOk) == 24);
static_assert(offsetof(KVGeneralStatus, jobsDoneError) == 28);
static_assert(offsetof(KVGeneralStatus, jobsTotal) == 32);
static_assert(offsetof(KVGeneralStatus, actionIdNext) == 36);
static_assert(offsetof(KVGeneralStatus, warning) == 40);
static_assert(offsetof(KVGeneralStatus, laminatorState) == 44);
static_assert(offsetof(KVGeneralStatus, paramChangeCounter) == 48);

static_assert(sizeof(KVJobStatus) == 88);
static_assert(offsetof(KVJobStatus, actionId) == 0);
static_assert(offsetof(KVJobStatus, uuid) == 8);
static_assert(offsetof(KVJobStatus, readyForNextJob) == 48);
static_assert(offsetof(KVJobStatus, copiesDone) == 52);
static_assert(offsetof(KVJobStatus, copiesTotalSpecified) == 56);
static_assert(offsetof(KVJobStatus, errorCode) == 60);
static_assert(offsetof(KVJobStatus, printState) == 64);
static_assert(offsetof(KVJobStatus, magState) == 68);
static_assert(offsetof(KVJobStatus, contactState) == 72);
static_assert(offsetof(KVJobStatus, contactlessState) == 76);
static_assert(offsetof(KVJobStatus, positionInTransport) == 80);
static_assert(offsetof(KVJobStatus, laminatorState) == 84);

static_assert(sizeof(_MediaStatusInfo) == 96);
static_assert(offsetof(_MediaStatusInfo, type) == 0);
static_assert(offsetof(_MediaStatusInfo, code) == 4);
static_assert(offsetof(_MediaStatusInfo, description) == 8);
static_assert(offsetof(_MediaStatusInfo, partNumber) == 40);
static_assert(offsetof(_MediaStatusInfo, oemCountry) == 72);
static_assert(offsetof(_MediaStatusInfo, initialSize) == 80);
static_assert(offsetof(_MediaStatusInfo, panelsRemaining) == 84);
static_assert(offsetof(_MediaStatusInfo, payoutDiameter) == 88);
static_assert(offsetof(_MediaStatusInfo, takeupDiameter) == 92);

static_assert(sizeof(MediaStatus) == 388);
static_assert(offsetof(MediaStatus, ribbon) == 0);
static_assert(offsetof(MediaStatus, reserved) == 96);
static_assert(offsetof(MediaStatus, film) == 100);
static_assert(offsetof(MediaStatus, topLaminate) == 196);
static_assert(offsetof(MediaStatus, bottomLaminate) == 292);

static_assert(sizeof(_KVJobInfo) == 56);
static_assert(offsetof(_KVJobInfo, actionId) == 0);
static_assert(offsetof(_KVJobInfo, uuid) == 8);
static_assert(offsetof(_KVJobInfo, printState) == 48);

static_assert(sizeof(KVJobList) == 3592);
static_assert(KVJOBLIST_CAPACITY == 64);
static_assert(offsetof(KVJobList, count) == 0);
static_assert(offsetof(KVJobList, jobs) == 8);

static_assert(sizeof(KVCardCount) == 24);
static_assert(offsetof(KVCardCount, totalCardsDone) == 0);
static_assert(offsetof(KVCardCount, laminatorCardsLaminated) == 8);
static_assert(offsetof(KVCardCount, laminatorCardsProcessed) == 16);

static_assert(sizeof(KVUpTimes) == 24);
static_assert(offsetof(KVUpTimes, laminatorTotalUpTime) == 0);
static_assert(offsetof(KVUpTimes, laminatorTopBulbOnTime) == 8);
static_assert(offsetof(KVUpTimes, laminatorBottomBulbOnTime) == 16);

static_assert(sizeof(__MEMORY) == 4);
static_assert(offsetof(__MEMORY, bytesFree) == 0);

static_assert(sizeof(KVCleaningStatus) == 4);
static_assert(offsetof(KVCleaningStatus, cleaningState) == 0);

static_assert(sizeof(_tagPackets) == 20);
static_assert(offsetof(_tagPackets, octets) == 0);
static_assert(offsetof(_tagPackets, upkts) == 4);
static_assert(offsetof(_tagPackets, nupkts) == 8);
static_assert(offsetof(_tagPackets, discards) == 12);
static_assert(offsetof(_tagPackets, errors) == 16);

static_assert(sizeof(_tagWirelessStatus) == 108);
static_assert(offsetof(_tagWirelessStatus, state) == 0);
static_assert(offsetof(_tagWirelessStatus, ssid) == 4);
static_assert(offsetof(_tagWirelessStatus, channel) == 36);
static_assert(offsetof(_tagWirelessStatus, rssi) == 40);
static_assert(offsetof(_tagWirelessStatus, snr) == 44);
static_assert(offsetof(_tagWirelessStatus, nf) == 48);
static_assert(offsetof(_tagWirelessStatus, security) == 52);
static_assert(offsetof(_tagWirelessStatus, crypto) == 56);
static_assert(offsetof(_tagWirelessStatus, rate) == 60);
static_assert(offsetof(_tagWirelessStatus, in) == 64);
static_assert(offsetof(_tagWirelessStatus, out) == 84);
static_assert(offsetof(_tagWirelessStatus, link_lost) == 104);

static_assert(sizeof(_tagWirelessRadioStatus) == 68);
static_assert(offsetof(_tagWirelessRadioStatus, mcasttxframe) == 0);
static_assert(offsetof(_tagWirelessRadioStatus, failed) == 4);
static_assert(offsetof(_tagWirelessRadioStatus, retry) == 8);
static_assert(offsetof(_tagWirelessRadioStatus, multiretry) == 12);
static_assert(offsetof(_tagWirelessRadioStatus, framedup) == 16);
static_assert(offsetof(_tagWirelessRadioStatus, rtssuccess) == 20);
static_assert(offsetof(_tagWirelessRadioStatus, rtsfailure) == 24);
static_assert(offsetof(_tagWirelessRadioStatus, ackfailure) == 28);
static_assert(offsetof(_tagWirelessRadioStatus, rxfrag) == 32);
static_assert(offsetof(_tagWirelessRadioStatus, mcastrxframe) == 36);
static_assert(offsetof(_tagWirelessRadioStatus, fcserror) == 40);
static_assert(offsetof(_tagWirelessRadioStatus, txframe) == 44);
static_assert(offsetof(_tagWirelessRadioStatus, tx_success) == 48);
static_assert(offsetof(_tagWirelessRadioStatus, tx_retry) == 52);
static_assert(offsetof(_tagWirelessRadioStatus, rx_success) == 56);
static_assert(offsetof(_tagWirelessRadioStatus, rx_duplicate) == 60);
static_assert(offsetof(_tagWirelessRadioStatus, rts_success) == 64);

static_assert(sizeof(_tagAccessPoint) == 72);
static_assert(offsetof(_tagAccessPoint, SSID) == 0);
static_assert(offsetof(_tagAccessPoint, BSSID) == 34);
static_assert(offsetof(_tagAccessPoint, Selected) == 40);
static_assert(offsetof(_tagAccessPoint, Channel) == 44);
static_assert(offsetof(_tagAccessPoint, Privacy) == 48);
static_assert(offsetof(_tagAccessPoint, SignalStrength) == 52);
static_assert(offsetof(_tagAccessPoint, Infrastructure) == 56);
static_assert(offsetof(_tagAccessPoint, Security) == 60);
static_assert(offsetof(_tagAccessPoint, Encryption) == 64);
static_assert(offsetof(_tagAccessPoint, MaxDataRate) == 68);

static_assert(sizeof(_tagAccessPoints) == 16);
static_assert(offsetof(_tagAccessPoints, accessPoints) == 0);
static_assert(offsetof(_tagAccessPoints, count) == 8);
