#pragma once

#include "engine/exiftoolcommand.h"
#include "engine/exiftoolprocess.h"

#include <QString>
#include <QStringList>

#include <memory>

// "Run ExifTool with this argument list; give me its output, errors and exit status": the one
// call every write goes through. Two ways to keep it: a persistent process, so Perl starts once
// per runner rather than once per file, and a process per run, which the persistent one is
// checked against. A session is used from one thread only.
class ExifToolSession
{
public:
    virtual ~ExifToolSession() = default;

    // timeoutMs < 0 waits as long as it takes. After a crash or a timeout the next call starts
    // afresh.
    virtual ExifToolResult execute(const QStringList &arguments, int timeoutMs = -1) = 0;
    virtual QString program() const = 0;
};

class PersistentExifToolSession final : public ExifToolSession
{
public:
    explicit PersistentExifToolSession(QString program = exifToolPath());
    ExifToolResult execute(const QStringList &arguments, int timeoutMs = -1) override;
    QString program() const override;

private:
    ExifToolProcess m_process;
};

class OneShotExifToolSession final : public ExifToolSession
{
public:
    explicit OneShotExifToolSession(QString program = exifToolPath());
    ExifToolResult execute(const QStringList &arguments, int timeoutMs = -1) override;
    QString program() const override;

private:
    ExifToolCommand m_command;
};

enum class ExifToolSessionKind { Persistent, OneShot };

std::unique_ptr<ExifToolSession> makeExifToolSession(ExifToolSessionKind kind,
                                                     const QString &program = exifToolPath());
