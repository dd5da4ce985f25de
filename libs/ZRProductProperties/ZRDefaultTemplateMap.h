#ifndef ZRDEFAULTTEMPLATEMAP_H
#define ZRDEFAULTTEMPLATEMAP_H

#include "ZRDefaultTemplateKey.h"
#include "zrproductproperties_export.h"

#include <QHash>
#include <QString>

class QDomElement;

/**
 * The names of the layout, background and design templates that the editor puts on a new page,
 * keyed by single page type, single alignment, kind, page number and scene page count.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRDefaultTemplateMap : public QHash<ZRDefaultTemplateKey, QString>
{
public:
    ZRDefaultTemplateMap();
    /** The entries of the "default" children of @p element; see applyDefaultsNode(). */
    explicit ZRDefaultTemplateMap(const QDomElement &element);

    /**
     * Adds the entries of every "default" child of @p element, a later one replacing an earlier one
     * with the same key. Per element: "pageType" (page type list, default empty), "alignment"
     * (default all six alignments), "pageNr" and "scenePageCount" (default -1), "layout",
     * "background" and "design" names. "templates" is a short form "background,layout" that gives
     * the defaults of the first two; without it the background is "201". Umlauts in the names are
     * spelt out. An entry is stored for every page type and every single alignment flag, empty
     * names included.
     */
    void applyDefaultsNode(const QDomElement &element);

    /**
     * The name stored for @p key; if that is missing or empty, the one for page number -1 with the
     * same scene page count (only when the count is not -1), and last the one for page number and
     * scene page count -1. Empty when nothing is found.
     */
    QString findTemplate(const ZRDefaultTemplateKey &key) const;

    /** @p text with ä, ö, ü and ß replaced by ae, oe, ue and ss, capitals included (Ä gives ae). */
    QString removeUmlauts(const QString &text) const;
};

#endif
