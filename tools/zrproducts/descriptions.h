#ifndef ZRPRODUCTS_DESCRIPTIONS_H
#define ZRPRODUCTS_DESCRIPTIONS_H

#include "report.h"

#include <QList>
#include <QString>

class ZRLegacyProductTypeConfigRegistry;
class ZRProductTypeConfigRegistryAbstract;
class ZRProductTypeDescription;
class ZRThematicCategory;

/**
 * The inspector's views of what the library knows: product lists, whole descriptions, expanded page
 * lists and thematic categories, as Records and Tables ready for text or JSON output.
 */
namespace Descriptions {

/** The number of content pages for which "show" expands the page list. */
constexpr unsigned int typicalContentPages = 24;

/** The columns of a product list; legacy products add replaced-by and conversion strategy. */
Table productTable(bool legacy);
/** Appends one row per product of @p registry to @p table, sorted by name. */
void addProducts(Table *table, const ZRProductTypeConfigRegistryAbstract *registry, bool legacy);

/** Everything @p description knows, sub-records included. */
Record product(const ZRProductTypeDescription &description, bool legacy);

/**
 * The page list of @p description expanded for @p count content pages: per page its index, page
 * type, alignment, safety margin and default layout, background and design.
 */
Table pages(const ZRProductTypeDescription &description, unsigned int count);

/** Key, internal name, visible name, colour and colour sort key of each category. */
Table categories(const QList<ZRThematicCategory> &categories);
/** The special categories of the editor, then the colour categories of "colors.xml" by colour. */
QList<ZRThematicCategory> knownCategories();

} // namespace Descriptions

#endif
