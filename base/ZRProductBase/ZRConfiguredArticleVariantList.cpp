#include "ZRConfiguredArticleVariantList.h"

#include "ZRXMLDiagnostics.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("variants"), {}, { QStringLiteral("variant") });
const ZRXMLVocabulary variantVocabulary(
    QStringLiteral("variant"), { QStringLiteral("name"), QStringLiteral("choices"), QStringLiteral("default") }, {});
} // namespace

ZRConfiguredArticleVariant::ZRConfiguredArticleVariant(
    const QString &name, const QStringList &choices, const QString &defaultChoice)
    : m_name(name)
    , m_choices(choices)
    , m_defaultChoice(defaultChoice)
{ }

ZRConfiguredArticleVariant::~ZRConfiguredArticleVariant() = default;

bool ZRConfiguredArticleVariant::operator==(const ZRConfiguredArticleVariant &other) const
{
    return m_name == other.m_name && m_choices == other.m_choices && m_defaultChoice == other.m_defaultChoice;
}

ZRConfiguredArticleVariantList::ZRConfiguredArticleVariantList(const QDomElement &productElement)
{
    const QDomElement variants = productElement.firstChildElement(vocabulary.element());
    vocabulary.check(variants);
    for (QDomElement variant = variants.firstChildElement(variantVocabulary.element()); !variant.isNull();
         variant = variant.nextSiblingElement(variantVocabulary.element())) {
        variantVocabulary.check(variant);
        const QString name = variant.attribute(QStringLiteral("name")).trimmed();
        if (name.isEmpty()) {
            if (ZRXMLDiagnostics::isActive()) {
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("ignored-element"),
                    QStringLiteral("<variant> without a 'name' is ignored"), variant);
            }
            continue;
        }
        QStringList choices;
        const QStringList parts
            = variant.attribute(QStringLiteral("choices")).split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (const QString &part : parts) {
            const QString choice = part.trimmed();
            if (!choice.isEmpty())
                choices.append(choice);
        }
        const QString defaultChoice
            = variant.attribute(QStringLiteral("default"), choices.isEmpty() ? QString() : choices.first()).trimmed();
        append(ZRConfiguredArticleVariant(name, choices, defaultChoice));
    }
}
