#include "ZRTextureTarget.h"

#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("textureTarget"),
    { QStringLiteral("name"), QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
        QStringLiteral("height"), QStringLiteral("page") },
    {});
}

ZRTextureTarget::ZRTextureTarget(const QString &name, const QRectF &rect, int page)
    : m_name(name)
    , m_rect(rect)
    , m_page(page)
{ }

ZRTextureTarget::ZRTextureTarget(const QDomElement &element)
    : m_name(ZRXMLParser::attribute(element, QStringLiteral("name"), QString(), true))
    , m_rect(ZRXMLParser::readRectF(element.attributes()))
    , m_page(ZRXMLParser::intAttribute(element, QStringLiteral("page"), 0))
{
    vocabulary.check(element);
}

ZRTextureTarget::~ZRTextureTarget() = default;
ZRTextureTarget::ZRTextureTarget(const ZRTextureTarget &other) = default;
ZRTextureTarget::ZRTextureTarget(ZRTextureTarget &&other) noexcept = default;
ZRTextureTarget &ZRTextureTarget::operator=(const ZRTextureTarget &other) = default;
ZRTextureTarget &ZRTextureTarget::operator=(ZRTextureTarget &&other) noexcept = default;
