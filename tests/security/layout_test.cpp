// The layout of the security records is a contract with hosts that were built against an earlier release.
#include <cstddef>

#include "SecurityRecords.h"

using namespace Kavrin;

static_assert(sizeof(_tagHostDHKeys) == 24);
static_assert(offsetof(_tagHostDHKeys, modulus) == 0);
static_assert(offsetof(_tagHostDHKeys, base) == 8);
static_assert(offsetof(_tagHostDHKeys, host_interim_key) == 16);

static_assert(sizeof(_tagSecDirecXML) == 1300);
static_assert(offsetof(_tagSecDirecXML, model) == 0);
static_assert(offsetof(_tagSecDirecXML, serial) == 260);
static_assert(offsetof(_tagSecDirecXML, action) == 520);
static_assert(offsetof(_tagSecDirecXML, nonce) == 780);
static_assert(offsetof(_tagSecDirecXML, hmac) == 1040);

static_assert(sizeof(_tagSecReqXML) == 1040);
static_assert(offsetof(_tagSecReqXML, model) == 0);
static_assert(offsetof(_tagSecReqXML, serial) == 260);
static_assert(offsetof(_tagSecReqXML, action) == 520);
static_assert(offsetof(_tagSecReqXML, nonce) == 780);

static_assert(sizeof(_tagSecKeys) == 780);
static_assert(offsetof(_tagSecKeys, data_encryption_key) == 0);
static_assert(offsetof(_tagSecKeys, host_authentication_key) == 260);
static_assert(offsetof(_tagSecKeys, printer_lock_key) == 520);

static_assert(sizeof(_tagSecSetKeys) == 512);
static_assert(offsetof(_tagSecSetKeys, current_data_encryption_key) == 0);
static_assert(offsetof(_tagSecSetKeys, new_data_encryption_key) == 64);
static_assert(offsetof(_tagSecSetKeys, current_host_authentication_key) == 128);
static_assert(offsetof(_tagSecSetKeys, new_host_authentication_key) == 192);
static_assert(offsetof(_tagSecSetKeys, current_printer_lock_key) == 256);
static_assert(offsetof(_tagSecSetKeys, new_printer_lock_key) == 320);
static_assert(offsetof(_tagSecSetKeys, current_passkey) == 384);
static_assert(offsetof(_tagSecSetKeys, new_passkey) == 448);

static_assert(sizeof(_tagSecActionXMLValues) == 40);
static_assert(offsetof(_tagSecActionXMLValues, name) == 0);
static_assert(offsetof(_tagSecActionXMLValues, model) == 8);
static_assert(offsetof(_tagSecActionXMLValues, serial) == 16);
static_assert(offsetof(_tagSecActionXMLValues, nonce) == 24);
static_assert(offsetof(_tagSecActionXMLValues, hmac) == 32);
