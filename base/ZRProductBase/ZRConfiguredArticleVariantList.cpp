#include "ZRConfiguredArticleVariantList.h"

ZRConfiguredArticleVariant::ZRConfiguredArticleVariant(const QString &name, const QStringList &choices,
                                                       const QString &defaultChoice)
    : m_name(name)
    , m_choices(choices)
    , m_defaultChoice(defaultChoice)
{
}

ZRConfiguredArticleVariant::~ZRConfiguredArticleVariant() = default;

bool ZRConfiguredArticleVariant::operator==(const ZRConfiguredArticleVariant &other) const
{
    return m_name == other.m_name && m_choices == other.m_choices && m_defaultChoice == other.m_defaultChoice;
}

ZRConfiguredArticleVariantList::ZRConfiguredArticleVariantList(const QDomElement &productElement)
{
    const QDomElement variants = productElement.firstChildElement(QStringLiteral("variants"));
    for (QDomElement variant = variants.firstChildElement(QStringLiteral("variant")); !variant.isNull();
         variant = variant.nextSiblingElement(QStringLiteral("variant"))) {
        const QString name = variant.attribute(QStringLiteral("name")).trimmed();
        if (name.isEmpty())
            continue;
        QStringList choices;
        const QStringList parts = variant.attribute(QStringLiteral("choices")).split(QLatin1Char(','), Qt::SkipEmptyParts);
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
