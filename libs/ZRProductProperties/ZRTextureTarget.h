#ifndef ZRTEXTURETARGET_H
#define ZRTEXTURETARGET_H

#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QRectF>
#include <QString>

/** Which rectangle of which product page is painted onto the part @p name of a 3D preview model. */
class ZRPRODUCTPROPERTIES_EXPORT ZRTextureTarget
{
public:
    explicit ZRTextureTarget(const QString &name = QString(), const QRectF &rect = QRectF(), int page = 0);
    /**
     * Reads a "textureTarget" element: its "name", its rectangle and its "page" (0 when missing or
     * not a number).
     */
    explicit ZRTextureTarget(const QDomElement &element);
    virtual ~ZRTextureTarget();
    ZRTextureTarget(const ZRTextureTarget &other);
    ZRTextureTarget(ZRTextureTarget &&other) noexcept;
    ZRTextureTarget &operator=(const ZRTextureTarget &other);
    ZRTextureTarget &operator=(ZRTextureTarget &&other) noexcept;

    QString name() const { return m_name; }
    QRectF rect() const { return m_rect; }
    int page() const { return m_page; }

    bool operator==(const ZRTextureTarget &other) const
    {
        return m_name == other.m_name && m_rect == other.m_rect && m_page == other.m_page;
    }
    bool operator!=(const ZRTextureTarget &other) const { return !(*this == other); }

private:
    QString m_name;
    QRectF m_rect;
    int m_page = 0;
};

#endif
