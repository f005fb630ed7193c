#include "app/commandline.h"

#include "catalogue/preset.h"
#include "catalogue/exiffieldscontroller.h"
#include "values/usersettings.h"
#include "catalogue/presetstore.h"
#include "engine/exiftoolpath.h"
#include "engine/exiftoolversion.h"
#include "engine/presetbatch.h"
#include "values/debugmode.h"
#include "values/trcontext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

constexpr TrContext tr{"CommandLine"};

const QString ApplyPresetOption = QStringLiteral("--apply-preset");

CommandLine failure(const QString &text)
{
    CommandLine line;
    line.mode = CommandLine::Mode::Error;
    line.errorText = text;
    return line;
}

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

int printVersion()
{
    const ExifToolVersion tool = exifToolVersion();
    out() << QStringLiteral("Tagsmith %1\n").arg(QStringLiteral(TAGSMITH_VERSION));
    if (tool.isKnown())
        out() << QStringLiteral("ExifTool %1 (%2)\n").arg(tool.version, tool.program);
    else
        out() << QStringLiteral("ExifTool: %1\n").arg(tool.errorMessage);
    const QString page = BundledPaths::mapPage(QCoreApplication::applicationDirPath());
    out() << (QFileInfo::exists(page) ? tr("Map page: %1\n").arg(page)
                                      : tr("Map page: missing (looked for %1)\n").arg(page));
    out().flush();
    return tool.isKnown() ? 0 : 1;
}

int applyPreset(const CommandLine &line)
{
    ExifFieldsController::defaultInstance()->initializeConfigurations();
    ExifFieldsController::defaultInstance()->setLinksForms(!UserSettings::showsEveryTag());
    PresetStore &store = PresetStore::instance();
    store.initializeSettings();
    PresetPtr preset;
    QStringList names;
    for (const PresetPtr &candidate : store.configurations()) {
        names.append(candidate->name());
        if (candidate->name() == line.presetName)
            preset = candidate;
    }
    if (!preset) {
        names.sort(Qt::CaseInsensitive);
        err() << (names.isEmpty()
                      ? tr("tagsmith: there is no preset named \"%1\"; no presets are saved.\n")
                            .arg(line.presetName)
                      : tr("tagsmith: there is no preset named \"%1\". The presets are: %2\n")
                            .arg(line.presetName, names.join(QStringLiteral(", "))));
        return 2;
    }
    bool anyFailed = !line.rejected.isEmpty();
    for (const FileRejection &rejection : line.rejected)
        out()
            << QStringLiteral("%1: %2\n").arg(rejection.path, FileAdmission::reasonText(rejection));
    for (const PresetBatch::FileResult &result : PresetBatch::run(*preset, line.paths)) {
        out() << PresetBatch::describe(result) << u'\n';
        anyFailed = anyFailed || result.outcome == PresetBatch::Outcome::Failed;
    }
    out().flush();
    return anyFailed ? 1 : 0;
}

} // namespace

CommandLine CommandLine::parse(const QList<QByteArray> &arguments, const QString &currentFolder)
{
    CommandLine line;
    QList<QByteArray> names;
    bool optionsEnded = false;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString argument = QFile::decodeName(arguments.at(i));
        const bool isOption = !optionsEnded && argument.size() > 1 && argument.startsWith(u'-');
        if (!isOption) {
            names.append(arguments.at(i));
        } else if (argument == u"--") {
            optionsEnded = true;
        } else if (argument == u"-h" || argument == u"--help") {
            line.mode = Mode::Help;
        } else if (argument == u"--version") {
            if (line.mode != Mode::Help)
                line.mode = Mode::Version;
        } else if (argument == u"-debug" || argument == u"--debug") {
            line.debug = true;
        } else if (argument == ApplyPresetOption || argument.startsWith(ApplyPresetOption + u'=')) {
            if (argument == ApplyPresetOption) {
                if (++i >= arguments.size())
                    return failure(tr("--apply-preset needs the name of a preset."));
                line.presetName = QFile::decodeName(arguments.at(i));
            } else {
                line.presetName = argument.mid(ApplyPresetOption.size() + 1);
            }
            if (line.mode == Mode::Window)
                line.mode = Mode::ApplyPreset;
        } else {
            return failure(tr("unknown option %1. A file whose name starts with '-' can be given "
                              "after --, or as ./%1.")
                               .arg(argument));
        }
    }
    const FileAdmissionResult files = FileAdmission::commandLineFiles(names, currentFolder);
    line.paths = files.accepted;
    line.rejected = files.rejected;
    if (line.mode == Mode::ApplyPreset && line.paths.isEmpty() && line.rejected.isEmpty())
        return failure(tr("--apply-preset needs files or folders to apply the preset to."));
    return line;
}

CommandLine CommandLine::parse(const QStringList &arguments, const QString &currentFolder)
{
    QList<QByteArray> bytes;
    for (const QString &argument : arguments)
        bytes.append(QFile::encodeName(argument));
    return parse(bytes, currentFolder);
}

bool CommandLine::isHeadless(const QStringList &arguments)
{
    // The options QGuiApplication and QApplication take for themselves, with a value or without.
    static const QStringList guiOptionsWithValue{u"-platform"_qs,
                                                 u"-platformpluginpath"_qs,
                                                 u"-platformtheme"_qs,
                                                 u"-plugin"_qs,
                                                 u"-qwindowgeometry"_qs,
                                                 u"-qwindowicon"_qs,
                                                 u"-qwindowtitle"_qs,
                                                 u"-display"_qs,
                                                 u"-geometry"_qs,
                                                 u"-style"_qs,
                                                 u"-stylesheet"_qs,
                                                 u"-session"_qs,
                                                 u"-name"_qs,
                                                 u"-title"_qs,
                                                 u"-visual"_qs};
    static const QStringList guiFlags{u"-reverse"_qs, u"-nograb"_qs, u"-dograb"_qs, u"-sync"_qs,
                                      u"-widgetcount"_qs};
    QStringList remaining{arguments.value(0)};
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == u"--") {
            remaining.append(arguments.mid(i));
            break;
        }
        if (guiOptionsWithValue.contains(argument))
            ++i;
        else if (!guiFlags.contains(argument) && !argument.startsWith(u"-style="_qs))
            remaining.append(argument);
    }
    return parse(remaining, QDir::currentPath()).mode != Mode::Window;
}

QString CommandLine::helpText()
{
    return tr("Usage: tagsmith [OPTION]... [FILE|FOLDER]...\n"
              "Edit the metadata (EXIF, IPTC, XMP, GPS) of photographs.\n"
              "\n"
              "  -h, --help               show this help and exit\n"
              "      --version            show the versions of Tagsmith and of its ExifTool\n"
              "      --apply-preset NAME  apply the saved preset NAME to the files and folders\n"
              "                           given and save them, without a window; prints one\n"
              "                           line per file: saved, unchanged, or what went wrong\n"
              "  -debug                   log every ExifTool command and its output\n"
              "  --                       every later argument is a file or folder\n"
              "\n"
              "Without --apply-preset the window opens with the files and folders given.\n"
              "Exit status: 0 when all went well, 1 when a file could not be saved, 2 when\n"
              "the command line or the preset's name is wrong.\n");
}

int runHeadless(const CommandLine &line)
{
    DebugMode::setEnabled(line.debug);
    switch (line.mode) {
    case CommandLine::Mode::Help:
        out() << CommandLine::helpText();
        out().flush();
        return 0;
    case CommandLine::Mode::Version:
        return printVersion();
    case CommandLine::Mode::ApplyPreset:
        return applyPreset(line);
    case CommandLine::Mode::Error:
        err() << QStringLiteral("tagsmith: %1\n").arg(line.errorText)
              << tr("Try 'tagsmith --help' for more information.\n");
        err().flush();
        return 2;
    case CommandLine::Mode::Window:
        break;
    }
    return 0;
}
