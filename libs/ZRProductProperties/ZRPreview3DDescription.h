#ifndef ZRPREVIEW3DDESCRIPTION_H
#define ZRPREVIEW3DDESCRIPTION_H

#include "zrproductproperties_export.h"

#include "ZRTextureTarget.h"

#include <QDomElement>
#include <QList>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QUrl>
#include <QVector3D>

/**
 * What the 3D preview of a product needs: the mesh file and how its texture is flipped, the texture
 * targets, an optional cup-ring rectangle, a normal and a big camera, and the window size. A product
 * without a "preview3D" element has an empty description and no preview.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRPreview3DDescription
{
public:
    /** Empty: no mesh, no flips, null cup ring, cameras at the origin, window size (-1, -1). */
    ZRPreview3DDescription();
    /** Reads the "preview3D" child of @p productElement; what is missing keeps its default. */
    explicit ZRPreview3DDescription(const QDomElement &productElement);
    virtual ~ZRPreview3DDescription();
    ZRPreview3DDescription(const ZRPreview3DDescription &other);
    ZRPreview3DDescription(ZRPreview3DDescription &&other) noexcept;
    ZRPreview3DDescription &operator=(const ZRPreview3DDescription &other);
    ZRPreview3DDescription &operator=(ZRPreview3DDescription &&other) noexcept;

    /** Reads the "preview3D" child of @p productElement over the current values. */
    void init(const QDomElement &productElement);

    QString mesh() const { return m_mesh; }
    bool flipX() const { return m_flipX; }
    bool flipY() const { return m_flipY; }
    QList<ZRTextureTarget> textureTargets() const { return m_textureTargets; }
    QRectF cupRingRect() const { return m_cupRingRect; }
    QSize windowSize() const { return m_windowSize; }

    /**
     * The address of the preview page for this product, with the mesh, the flips and the big
     * (@p big true) or normal camera as query items; an empty address when there is no mesh.
     */
    QUrl url(bool big) const;

    bool operator==(const ZRPreview3DDescription &other) const;
    bool operator!=(const ZRPreview3DDescription &other) const { return !(*this == other); }

private:
    bool m_flipY = false;
    bool m_flipX = false;
    QRectF m_cupRingRect;
    QString m_mesh;
    QVector3D m_cameraPosition;
    QVector3D m_cameraLookAt;
    QVector3D m_cameraBigPosition;
    QVector3D m_cameraBigLookAt;
    QList<ZRTextureTarget> m_textureTargets;
    QSize m_windowSize { -1, -1 };
};

#endif
