// The layout of the status records is a contract with hosts that were built against an earlier release.
#include <cstddef>

#include "StatusRecords.h"

using Kavrin::KVGeneralStatus;
using Kavrin::KVJobStatus;

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
