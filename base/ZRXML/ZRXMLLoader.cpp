#include "ZRXMLLoader.h"

#include <QDomDocument>
#include <QFile>

QDomElement ZRXMLLoader::loadDocumentElement(const QFileInfo &file)
{
    QFile input(file.absoluteFilePath());
    if (!input.open(QIODevice::ReadOnly))
        return QDomElement();
    return loadDocumentElement(input.readAll());
}

QDomElement ZRXMLLoader::loadDocumentElement(const QByteArray &content)
{
    QDomDocument document;
    if (!document.setContent(content))
        return QDomElement();
    return document.documentElement();
}
