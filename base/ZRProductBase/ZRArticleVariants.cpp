#include "ZRArticleVariants.h"

#include <QRegularExpression>
#include <QStringList>

ZRArticleVariants::ZRArticleVariants(const QString &text)
    : m_valid(!text.isEmpty())
{
    static const QRegularExpression separators(QStringLiteral("[;,]"));
    const QStringList pairs = text.split(separators, Qt::SkipEmptyParts);
    for (const QString &pair : pairs) {
        const qsizetype equals = pair.indexOf(QLatin1Char('='));
        const QString option = (equals < 0 ? pair : pair.left(equals)).trimmed();
        if (option.isEmpty())
            continue;
        m_choices.insert(option, equals < 0 ? QString() : pair.mid(equals + 1).trimmed());
    }
}

ZRArticleVariants::~ZRArticleVariants() = default;

QString ZRArticleVariants::toString() const
{
    QStringList options = m_choices.keys();
    options.sort();
    QStringList pairs;
    for (const QString &option : std::as_const(options))
        pairs.append(option + QLatin1Char('=') + m_choices.value(option));
    return pairs.join(QLatin1Char(';'));
}
