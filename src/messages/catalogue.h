/// @file messages/catalogue.h
/// A media catalogue in memory that somebody else provides.
#ifndef KVJXML_MESSAGES_CATALOGUE_H
#define KVJXML_MESSAGES_CATALOGUE_H

namespace kvj {

/// Makes a built catalogue of memory that is large enough for one.
void beginCatalogue(void* media);

/// Releases the lists and their entries.
void endCatalogue(void* media);

}  // namespace kvj

#endif
