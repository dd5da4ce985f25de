#ifndef THEMATICCATEGORYTESTDATA_H
#define THEMATICCATEGORYTESTDATA_H

#include <QDir>
#include <QFile>
#include <QFileInfo>
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
    xml += QStringLiteral("</context>\n</TS>\n");
    return xml.toUtf8();
}

/** Writes @p content to @p name inside @p dir, creating subdirectories; false when that fails. */
inline bool writeFile(const QString &dir, const QString &name, const QByteArray &content)
{
    const QString path = QDir(dir).filePath(name);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace ThematicCategoryTestData

#endif
