// What the print service tells of a queue.
#pragma once

#include <string>
#include <vector>

#include "platform/qt/cups_connection.h"
#include "platform/qt/printer_facts.h"

namespace trameli {

/// The attributes that `FactsFrom` reads.
std::vector<const char*> AttributesOfFacts();

PrinterFacts FactsFrom(const CupsLibrary& cups, const CupsAnswer& queue, const std::string& name);

}  // namespace trameli
