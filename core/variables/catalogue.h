#pragma once

#include <QStringList>

// Fills Description and Vip of a variable record from the catalogue of
// well-known variables (the first entry of the record's name wins); leaves
// unknown names, and the Vip of entries that do not mark one, alone.
namespace Catalogue {

void describe(QStringList &record);

} // namespace Catalogue
