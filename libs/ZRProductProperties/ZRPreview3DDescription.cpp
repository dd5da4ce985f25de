#include "ZRPreview3DDescription.h"

#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

#include <QCoreApplication>
#include <QUrlQuery>

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("preview3D"), {},
    { QStringLiteral("mesh"), QStringLiteral("textureTarget"), QStringLiteral("cupRing"), QStringLiteral("camera"),
        QStringLiteral("cameraBig"), QStringLiteral("windowSize") });
const ZRXMLVocabulary meshVocabulary(
    QStringLiteral("mesh"), { QStringLiteral("file"), QStringLiteral("flipY"), QStringLiteral("flipX") }, {});
const ZRXMLVocabulary cupRingVocabulary(QStringLiteral("cupRing"),
    { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"), QStringLiteral("height") }, {});
const ZRXMLVocabulary cameraVocabulary(
    QStringLiteral("camera"), {}, { QStringLiteral("position"), QStringLiteral("lookAt") });
const ZRXMLVocabulary cameraBigVocabulary(
    QStringLiteral("cameraBig"), {}, { QStringLiteral("position"), QStringLiteral("lookAt") });
const ZRXMLVocabulary positionVocabulary(
    QStringLiteral("position"), { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z") }, {});
const ZRXMLVocabulary lookAtVocabulary(
    QStringLiteral("lookAt"), { QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z") }, {});
const ZRXMLVocabulary windowSizeVocabulary(
    QStringLiteral("windowSize"), { QStringLiteral("width"), QStringLiteral("height") }, {});

QVector3D readPoint(const QDomElement &camera, const ZRXMLVocabulary &pointVocabulary)
{
    const QDomElement point = camera.firstChildElement(pointVocabulary.element());
    pointVocabulary.check(point);
    return ZRXMLParser::readVector3D(
        point.attributes(), QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), 0.0, 0.0, 0.0);
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
    const QDomElement preview = productElement.firstChildElement(vocabulary.element());
    vocabulary.check(preview);

    const QDomElement mesh = preview.firstChildElement(meshVocabulary.element());
    if (!mesh.isNull()) {
        meshVocabulary.check(mesh);
        const QDomNamedNodeMap attributes = mesh.attributes();
        m_mesh = ZRXMLParser::attribute(attributes, QStringLiteral("file"), QString(), true);
        m_flipY = ZRXMLParser::boolAttribute(attributes, QStringLiteral("flipY"), false);
        m_flipX = ZRXMLParser::boolAttribute(attributes, QStringLiteral("flipX"), false);
    }

    const QString textureTargetTag = QStringLiteral("textureTarget");
    for (QDomElement target = preview.firstChildElement(textureTargetTag); !target.isNull();
         target = target.nextSiblingElement(textureTargetTag))
        m_textureTargets.append(ZRTextureTarget(target));

    const QDomElement cupRing = preview.firstChildElement(cupRingVocabulary.element());
    if (!cupRing.isNull()) {
        cupRingVocabulary.check(cupRing);
        m_cupRingRect = ZRXMLParser::readRectF(cupRing.attributes());
    }

    const QDomElement camera = preview.firstChildElement(cameraVocabulary.element());
    if (!camera.isNull()) {
        cameraVocabulary.check(camera);
        m_cameraPosition = readPoint(camera, positionVocabulary);
        m_cameraLookAt = readPoint(camera, lookAtVocabulary);
    }
    const QDomElement cameraBig = preview.firstChildElement(cameraBigVocabulary.element());
    if (!cameraBig.isNull()) {
        cameraBigVocabulary.check(cameraBig);
        m_cameraBigPosition = readPoint(cameraBig, positionVocabulary);
        m_cameraBigLookAt = readPoint(cameraBig, lookAtVocabulary);
    }

    const QDomElement windowSize = preview.firstChildElement(windowSizeVocabulary.element());
    if (!windowSize.isNull()) {
        windowSizeVocabulary.check(windowSize);
        m_windowSize = ZRXMLParser::readSize(windowSize);
    }
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
