#include "ZRPreview3DDescription.h"

#include "ZRXMLParser.h"

#include <QCoreApplication>
#include <QUrlQuery>

namespace {
QVector3D readPoint(const QDomElement &camera, const QString &name)
{
    return ZRXMLParser::readVector3D(camera.firstChildElement(name).attributes(), QStringLiteral("x"),
        QStringLiteral("y"), QStringLiteral("z"), 0.0, 0.0, 0.0);
}

QString number(float value)
{
    return QString::number(double(value), 'g', 6);
}
} // namespace

ZRPreview3DDescription::ZRPreview3DDescription() = default;

ZRPreview3DDescription::ZRPreview3DDescription(const QDomElement &productElement)
{
    init(productElement);
}

ZRPreview3DDescription::~ZRPreview3DDescription() = default;
ZRPreview3DDescription::ZRPreview3DDescription(const ZRPreview3DDescription &other) = default;
ZRPreview3DDescription::ZRPreview3DDescription(ZRPreview3DDescription &&other) noexcept = default;
ZRPreview3DDescription &ZRPreview3DDescription::operator=(const ZRPreview3DDescription &other) = default;
ZRPreview3DDescription &ZRPreview3DDescription::operator=(ZRPreview3DDescription &&other) noexcept = default;

void ZRPreview3DDescription::init(const QDomElement &productElement)
{
    const QDomElement preview = productElement.firstChildElement(QStringLiteral("preview3D"));

    const QDomElement mesh = preview.firstChildElement(QStringLiteral("mesh"));
    if (!mesh.isNull()) {
        const QDomNamedNodeMap attributes = mesh.attributes();
        m_mesh = ZRXMLParser::attribute(attributes, QStringLiteral("file"), QString(), true);
        m_flipY = ZRXMLParser::boolAttribute(attributes, QStringLiteral("flipY"), false);
        m_flipX = ZRXMLParser::boolAttribute(attributes, QStringLiteral("flipX"), false);
    }

    const QString textureTargetTag = QStringLiteral("textureTarget");
    for (QDomElement target = preview.firstChildElement(textureTargetTag); !target.isNull();
         target = target.nextSiblingElement(textureTargetTag))
        m_textureTargets.append(ZRTextureTarget(target));

    const QDomElement cupRing = preview.firstChildElement(QStringLiteral("cupRing"));
    if (!cupRing.isNull())
        m_cupRingRect = ZRXMLParser::readRectF(cupRing.attributes());

    const QDomElement camera = preview.firstChildElement(QStringLiteral("camera"));
    if (!camera.isNull()) {
        m_cameraPosition = readPoint(camera, QStringLiteral("position"));
        m_cameraLookAt = readPoint(camera, QStringLiteral("lookAt"));
    }
    const QDomElement cameraBig = preview.firstChildElement(QStringLiteral("cameraBig"));
    if (!cameraBig.isNull()) {
        m_cameraBigPosition = readPoint(cameraBig, QStringLiteral("position"));
        m_cameraBigLookAt = readPoint(cameraBig, QStringLiteral("lookAt"));
    }

    const QDomElement windowSize = preview.firstChildElement(QStringLiteral("windowSize"));
    if (!windowSize.isNull())
        m_windowSize = ZRXMLParser::readSize(windowSize);
}

QUrl ZRPreview3DDescription::url(bool big) const
{
    if (m_mesh.isEmpty())
        return QUrl();

    // The page is served by the editor's own handler of the "vxs" scheme.
    QUrl address;
    address.setScheme(QStringLiteral("vxs"));
    address.setHost(QStringLiteral("localhost"));
    address.setPath(QStringLiteral("/threejs/productpreview/index.html"));

    const QVector3D position = big ? m_cameraBigPosition : m_cameraPosition;
    const QVector3D lookAt = big ? m_cameraBigLookAt : m_cameraLookAt;

    QUrlQuery query;
    query.addQueryItem(QStringLiteral("mesh"), m_mesh);
    if (m_flipY)
        query.addQueryItem(QStringLiteral("flipY"), QStringLiteral("true"));
    if (m_flipX)
        query.addQueryItem(QStringLiteral("flipX"), QStringLiteral("true"));
    query.addQueryItem(QStringLiteral("cx"), number(position.x()));
    query.addQueryItem(QStringLiteral("cy"), number(position.y()));
    query.addQueryItem(QStringLiteral("cz"), number(position.z()));
    query.addQueryItem(QStringLiteral("ax"), number(lookAt.x()));
    query.addQueryItem(QStringLiteral("ay"), number(lookAt.y()));
    query.addQueryItem(QStringLiteral("az"), number(lookAt.z()));
    query.addQueryItem(QStringLiteral("title"), QCoreApplication::translate("QObject", "Produktvorschau"));
    address.setQuery(query);
    return address;
}

bool ZRPreview3DDescription::operator==(const ZRPreview3DDescription &other) const
{
    return m_flipY == other.m_flipY && m_flipX == other.m_flipX && m_cupRingRect == other.m_cupRingRect
        && m_mesh == other.m_mesh && m_cameraPosition == other.m_cameraPosition
        && m_cameraLookAt == other.m_cameraLookAt && m_cameraBigPosition == other.m_cameraBigPosition
        && m_cameraBigLookAt == other.m_cameraBigLookAt && m_textureTargets == other.m_textureTargets
        && m_windowSize == other.m_windowSize;
}
