#include "engine/errormessages.h"

#include "catalogue/readlines.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"

#include <QCoreApplication>

ErrorMessages::ErrorMessages(QString fileName)
    : m_fileName(std::move(fileName))
{
}

int ErrorMessages::compare(const ErrorMessages &other) const
{
    return QString::compare(m_fileName, other.m_fileName);
}

void ErrorMessages::addErrorMessage(const ErrorMessage &message)
{
    m_messages.append(message);
    ++m_count;
    adjustKindCounter(message.type(), 1);
}

void ErrorMessages::addException(const TagsmithException &exception)
{
    qCWarning(lcTagsmith).noquote() << exception.reason();
    addError(QCoreApplication::translate("Localizable", "Unknown error occurred during processing"));
}

void ErrorMessages::addException(const std::exception &exception)
{
    qCWarning(lcTagsmith).noquote() << QString::fromUtf8(exception.what());
    addError(QCoreApplication::translate("Localizable", "Unknown error occurred during processing"));
}

void ErrorMessages::addError(const QString &text)
{
    addErrorMessage(ErrorMessage(
        m_fileName,
        text.isNull() ? QCoreApplication::translate("Localizable", "Unknown error") : text,
        ErrorMessage::Error));
}

void ErrorMessages::addWarning(const QString &text)
{
    addErrorMessage(ErrorMessage(
        m_fileName,
        text.isNull() ? QCoreApplication::translate("Localizable", "Unknown warning") : text,
        ErrorMessage::Warning));
}

void ErrorMessages::addExifToolOutput(QByteArrayView output)
{
    static const QString errorMarker = QStringLiteral("Error: ");
    static const QString warningMarker = QStringLiteral("Warning: ");
    const QStringList lines = readLines(output.toByteArray());
    for (const QString &line : lines) {
        // The marker's length is cut from the start of the line, wherever the marker stood:
        // ExifTool puts it first, and the results have always been shown this way.
        if (line.contains(errorMarker))
            addError(line.mid(errorMarker.size()));
        else if (line.contains(warningMarker))
            addWarning(line.mid(warningMarker.size()));
    }
}

void ErrorMessages::deleteMessageAtIndex(qsizetype index)
{
    if (index < 0 || index >= m_messages.size())
        throw TagsmithException(TagsmithException::IllegalArgument,
                                QStringLiteral("No message at index %1").arg(index));
    adjustKindCounter(m_messages.at(index).type(), -1);
    m_messages.removeAt(index);
}

void ErrorMessages::removeAllMessages()
{
    m_messages.clear();
    m_count = m_errorsCount = m_warnsCount = m_infosCount = 0;
}

void ErrorMessages::adjustKindCounter(qint32 type, int delta)
{
    quint64 *counter = nullptr;
    switch (type) {
    case ErrorMessage::Error:
        counter = &m_errorsCount;
        break;
    case ErrorMessage::Warning:
        counter = &m_warnsCount;
        break;
    case ErrorMessage::Info:
        counter = &m_infosCount;
        break;
    default:
        return;
    }
    if (delta > 0)
        ++*counter;
    else
        --*counter;
}
