#pragma once

#include <QString>

class QProcess;

// What every ExifTool child process shares: it dies with Tagsmith, and its failures read the same.
namespace ExifToolChild {

// Makes the child receive SIGINT when Tagsmith goes away, even when Tagsmith is killed. Must be
// called before start(). The signal goes when the *thread* that started the child ends, so a
// child must not outlive the thread that started it.
void prepare(QProcess &process);

QString startFailedMessage(const QString &program, const QString &reason);
QString crashedMessage(const QString &program);
QString timedOutMessage(const QString &program);

} // namespace ExifToolChild
