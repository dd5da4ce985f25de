#ifndef CONTEXTTAGGINGTRANSLATOR_H
#define CONTEXTTAGGINGTRANSLATOR_H

#include <QTranslator>

/** Answers every text as "[context]source", so tests see in which context a text was translated. */
class ContextTaggingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QStringLiteral("[%1]%2").arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
    }
    bool isEmpty() const override { return false; }
};

#endif
