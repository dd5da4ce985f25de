#ifndef ZRPRODUCTIONEXTRAPAGE_H
#define ZRPRODUCTIONEXTRAPAGE_H

#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QString>

/**
 * A prepared page that production inserts into a product: its file, its template type and the layer
 * of the target page it goes on.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductionExtraPage
{
public:
    /** No file, no type, layer 0. */
    ZRProductionExtraPage();
    /**
     * Reads the attributes "filename", "type" and "layer" of a "pdf" element. Missing texts are
     * empty; a missing or malformed layer is 0.
     */
    explicit ZRProductionExtraPage(const QDomElement &element);
    virtual ~ZRProductionExtraPage();

    QString filename() const { return m_filename; }
    QString templateType() const { return m_templateType; }
    int targetLayer() const { return m_targetLayer; }

    bool operator==(const ZRProductionExtraPage &other) const;
    bool operator!=(const ZRProductionExtraPage &other) const;

private:
    QString m_filename;
    QString m_templateType;
    int m_targetLayer = 0;
};

#endif
