#include "engine/exiftoolprotocol.h"

#include <QRegularExpression>

namespace ExifToolProtocol {

namespace {

bool isPerlSpace(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f' || c == u'\v';
}

// Lines ExifTool acts on while still reading the stream, whatever their place in a command.
bool isStreamControl(const QString &argument)
{
    static const QRegularExpression control(QStringLiteral("^-(execute\\d*|stay_open|@)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return control.match(argument).hasMatch();
}

bool survivesPlainLine(const QString &argument)
{
    if (argument.isEmpty() || argument.startsWith(u'#') || isPerlSpace(argument.front()))
        return false;
    if (argument.contains(u'\n') || argument.contains(u'\r'))
        return false;
    // ExifTool rewrites "-Tag = value" and "-Tag= value" to "-Tag=value" on plain lines.
    static const QRegularExpression assignment(
        QStringLiteral("^(-[-_0-9A-Z:]+#?)[ \\t\\n\\r\\f\\v]*([-+<]?=) ?"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = assignment.match(argument);
    return !match.hasMatch() ||
           match.capturedLength(0) == match.capturedLength(1) + match.capturedLength(2);
}

// "−" (U+2212) is taken for "-" by ExifTool, so "−−" ends the options as well.
bool startsWithDash(const QString &argument)
{
    return argument.startsWith(u'-') || argument.startsWith(QChar(0x2212));
}

bool isEndOfOptions(const QString &argument)
{
    return argument.size() == 2 && startsWithDash(argument) && startsWithDash(argument.mid(1));
}

const QByteArray statusPrefix = QByteArrayLiteral("{tagsmith-status ");

} // namespace

std::optional<QByteArray> encodeArgument(const QString &argument)
{
    if (argument.contains(QChar(0)) || isStreamControl(argument))
        return std::nullopt;
    if (!argument.contains(u'$') && !argument.contains(u'@')) {
        QByteArray line = QByteArrayLiteral("#[CSTR]");
        for (const char c : argument.toUtf8()) {
            switch (c) {
            case '\\':
                line += "\\\\";
                break;
            case '\n':
                line += "\\n";
                break;
            case '\r':
                line += "\\r";
                break;
            default:
                line += c;
            }
        }
        return line;
    }
    if (survivesPlainLine(argument))
        return argument.toUtf8();
    return std::nullopt;
}

QStringList withoutEndOfOptions(const QStringList &arguments)
{
    QStringList result;
    result.reserve(arguments.size());
    bool afterEnd = false;
    for (const QString &argument : arguments) {
        if (!afterEnd && isEndOfOptions(argument)) {
            afterEnd = true;
            continue;
        }
        result.append(afterEnd && startsWithDash(argument) ? QStringLiteral("./") + argument
                                                           : argument);
    }
    return result;
}

std::optional<QByteArray> encodeCommand(const QStringList &arguments, int number)
{
    // The status request goes first: a trailing option without its value cannot swallow it,
    // and ExifTool prints it only once the command has run.
    QByteArray command = QByteArrayLiteral("-echo4\n") + statusPrefix + QByteArray::number(number) +
                         QByteArrayLiteral(" ${status}}\n");
    for (const QString &argument : withoutEndOfOptions(arguments)) {
        const std::optional<QByteArray> line = encodeArgument(argument);
        if (!line)
            return std::nullopt;
        command += *line + '\n';
    }
    command += QByteArrayLiteral("-execute") + QByteArray::number(number) + '\n';
    return command;
}

QByteArray readyMarker(int number)
{
    return QByteArrayLiteral("{ready") + QByteArray::number(number) + QByteArrayLiteral("}\n");
}

std::optional<QByteArray> outputBeforeReady(const QByteArray &standardOutput, int number)
{
    const QByteArray marker = readyMarker(number);
    if (!standardOutput.endsWith(marker))
        return std::nullopt;
    return standardOutput.left(standardOutput.size() - marker.size());
}

std::optional<StatusLine> splitStatus(const QByteArray &standardError, int number)
{
    if (!standardError.endsWith("}\n"))
        return std::nullopt;
    const qsizetype lineStart = standardError.lastIndexOf('\n', standardError.size() - 2) + 1;
    const QByteArray prefix = statusPrefix + QByteArray::number(number) + ' ';
    const QByteArray line = standardError.mid(lineStart, standardError.size() - 2 - lineStart);
    if (!line.startsWith(prefix))
        return std::nullopt;
    bool isNumber = false;
    const int status = line.mid(prefix.size()).toInt(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return StatusLine{standardError.left(lineStart), status};
}

} // namespace ExifToolProtocol
