#include "kvjxml_version.h"

const char* kvjxml_version() { return KVJXML_VERSION; }
int kvjxml_version_number() { return KVJXML_VERSION_NUMBER; }
