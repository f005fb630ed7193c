#include "engine/exiftoolsession.h"

PersistentExifToolSession::PersistentExifToolSession(QString program)
    : m_process(std::move(program))
{
}

ExifToolResult PersistentExifToolSession::execute(const QStringList &arguments, int timeoutMs)
{
    return m_process.execute(arguments, timeoutMs);
}

QString PersistentExifToolSession::program() const
{
    return m_process.program();
}

OneShotExifToolSession::OneShotExifToolSession(QString program)
    : m_command(std::move(program))
{
}

ExifToolResult OneShotExifToolSession::execute(const QStringList &arguments, int timeoutMs)
{
    return m_command.run(arguments, {}, timeoutMs);
}

QString OneShotExifToolSession::program() const
{
    return m_command.program();
}

std::unique_ptr<ExifToolSession> makeExifToolSession(ExifToolSessionKind kind,
                                                     const QString &program)
{
    if (kind == ExifToolSessionKind::OneShot)
        return std::make_unique<OneShotExifToolSession>(program);
    return std::make_unique<PersistentExifToolSession>(program);
}
