#include "ZRXMLBuilder.h"

#include <QDomDocument>

QDomElement ZRXMLBuilder::buildDomElement(QDomNode &parent, const QString &tag, const QString &text)
{
    QDomDocument document = parent.isDocument() ? parent.toDocument() : parent.ownerDocument();
    QDomElement element = document.createElement(tag);
    if (!text.isEmpty())
        element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
    return element;
}
