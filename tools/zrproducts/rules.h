#ifndef ZRPRODUCTS_RULES_H
#define ZRPRODUCTS_RULES_H

#include <QDir>

class QDomElement;
class ZRProductTypeDescription;

/**
 * Cross-checks within one product description: what the library reads without complaint but what
 * cannot work as the file means it. Each finding goes to the active ZRXMLDiagnostics collector,
 * placed on the attribute or element it is about:
 *
 * - "surrounding-matches-no-page" (warning): a surrounding fits no page of the product, for any
 *   number of content pages;
 * - "default-for-missing-page-type" (warning): a default template for a page type that no page of
 *   the product has, or that the page it is bound to never has;
 * - "default-page-beyond-pages" (warning): a default template bound to a page the product never has;
 * - "layout-left-empty" (warning): the short form "templates" leaves the layout of a default empty,
 *   and a page that takes content gets no default layout from anywhere else;
 * - "missing-picture" (warning): a picture that the file names is not where the editor looks for it
 *   (surrounding pictures in the resource directory, spiral loop pictures in the thumbnails
 *   directory), or is no picture; not checked for legacy products, which the editor converts;
 * - "inverted-date-range" (error when the range is enforced, else warning): the first allowed year
 *   lies after the last one;
 * - "negative-margin" (warning): a negative safety margin, fold safety margin or page number indent;
 * - "unknown-classification-group" (warning): a wall-decor group without a description;
 * - "category-never-matches" (warning): a category of a jig's category list with blanks around its
 *   name, which no content category has.
 */
namespace Rules {

struct Context
{
    /** Where surrounding pictures are looked for. */
    QDir resourcesDir;
    /** Where spiral loop pictures are looked for. */
    QDir thumbnailsDir;
    /** The product is a legacy product. */
    bool legacy = false;
};

/** Reports the findings of the rules above for @p description, read from @p product. */
void checkProduct(const ZRProductTypeDescription &description, const QDomElement &product, const Context &context);

} // namespace Rules

#endif
