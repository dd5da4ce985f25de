#include "ZRXMLVocabulary.h"

#include "ZRXMLDiagnostics.h"

#include <QMutex>
#include <QMutexLocker>

namespace {
struct Registry
{
    QMutex mutex;
    QList<const ZRXMLVocabulary *> vocabularies;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}
} // namespace

ZRXMLVocabulary::ZRXMLVocabulary(
    const QString &element, const QStringList &attributes, const QStringList &children, ChildNames childNames)
    : m_element(element)
    , m_attributes(attributes)
    , m_children(children)
    , m_childNames(childNames)
{
    Registry &r = registry();
    const QMutexLocker locker(&r.mutex);
    r.vocabularies.append(this);
}

ZRXMLVocabulary::~ZRXMLVocabulary()
{
    Registry &r = registry();
    const QMutexLocker locker(&r.mutex);
    r.vocabularies.removeOne(this);
}

void ZRXMLVocabulary::check(const QDomElement &element) const
{
    if (!ZRXMLDiagnostics::isActive())
        return;
    if (m_childNames == KeyedChildren)
        ZRXMLDiagnostics::checkAttributes(element, m_attributes);
    else
        ZRXMLDiagnostics::checkNames(element, m_attributes, m_children);
}

QList<const ZRXMLVocabulary *> ZRXMLVocabulary::all()
{
    Registry &r = registry();
    const QMutexLocker locker(&r.mutex);
    return r.vocabularies;
}
