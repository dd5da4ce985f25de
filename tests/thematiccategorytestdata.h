#ifndef THEMATICCATEGORYTESTDATA_H
#define THEMATICCATEGORYTESTDATA_H

#include <QList>
#include <QPair>
#include <QString>

// Test data shared by the thematic category tests.
namespace ThematicCategoryTestData {

using Messages = QList<QPair<QString, QString>>;

/** A TS document of @p language with one context holding @p messages (source, translation). */
inline QByteArray tsDocument(const QString &language, const Messages &messages)
{
    QString xml
        = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"")
        + language + QStringLiteral("\">\n<context>\n<name>Categories</name>\n");
    for (const auto &message : messages) {
        xml += QStringLiteral("<message><source>") + message.first + QStringLiteral("</source><translation>")
            + message.second + QStringLiteral("</translation></message>\n");
    }
    return (xml + QStringLiteral("</context>\n</TS>\n")).toUtf8();
}

} // namespace ThematicCategoryTestData

#endif
