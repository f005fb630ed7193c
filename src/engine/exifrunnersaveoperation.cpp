#include "engine/exifrunnersaveoperation.h"

#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"
#include "engine/metadatareader.h"
#include "engine/exifutil.h"
#include "engine/filereplacement.h"
#include "engine/revertrecord.h"
#include "values/cameramakers.h"
#include "values/dateoffset.h"
#include "values/datevalue.h"
#include "values/leadingnumber.h"
#include "values/numberformatter.h"
#include "values/taglist.h"
#include "values/trcontext.h"
#include "values/usersettings.h"
#include "values/zoneshift.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace {

constexpr TrContext tr{"ExifRunnerSaveOperation"};

FieldDataRepresentation representationOf(const ExifFieldPtr &field)
{
    return field ? field->dataRepresentation() : FieldDataRepresentation::None;
}

bool isDateRepresentation(FieldDataRepresentation representation)
{
    return representation == FieldDataRepresentation::Date ||
           representation == FieldDataRepresentation::DateTime;
}

QString titleOf(const ExifFieldPtr &field, const QString &key)
{
    return field && !field->title().isEmpty() ? field->title() : key;
}

// ISO 2022 "ESC % G": the IPTC record holds UTF-8.
const QString IptcUtf8 = QStringLiteral("\x1b%G");

std::optional<double> parseNumber(const QString &text, const QLocale &locale)
{
    NumberFormatter formatter(locale);
    formatter.setLenient(true);
    return formatter.numberFromString(text);
}

bool isNumericType(const ExifFieldPtr &field)
{
    const auto type = field ? qint32(field->dataType()) : 0;
    return type >= qint32(FieldDataType::Int8) && type <= qint32(FieldDataType::UDouble);
}

// A number typed in the user's locale into a text row ("-1,5" in German) goes to ExifTool as
// plain digits with a point; text that already is one, or no number at all, goes as it is.
QString plainNumberText(const QString &text)
{
    bool plain = false;
    QLocale::c().toDouble(text.trimmed(), &plain);
    if (plain)
        return text;
    if (const auto number = parseNumber(text, QLocale()))
        return QLocale::c().toString(*number, 'f', QLocale::FloatingPointShortest);
    return text;
}

bool isListWithoutItems(const QString &key, const QString &value)
{
    return representationOf(ExifFieldsController::defaultInstance()->field(key)) ==
               FieldDataRepresentation::Strings &&
           splitStringsItems(value).isEmpty();
}

bool numbersMatch(double a, double b, qint64 decimals)
{
    const double tolerance = decimals >= 0 ? 0.5 * std::pow(10.0, -double(decimals)) + 1e-9
                                           : 1e-6 * std::max(1.0, std::fabs(b));
    return std::fabs(a - b) <= tolerance;
}

} // namespace

std::shared_ptr<ExifRunnerSaveOperation>
ExifRunnerSaveOperation::create(ExifFileInfoPtr efi, ExifOperationOption options)
{
    auto operation = std::make_shared<ExifRunnerSaveOperation>(std::move(efi), options);
    if (!operation->writesFile() && operation->m_sidecarPath.isEmpty())
        return nullptr;
    return operation;
}

ExifRunnerSaveOperation::ExifRunnerSaveOperation(ExifFileInfoPtr efi, ExifOperationOption options)
    : FileRewriteOperation(std::move(efi), options)
{
    m_itemsToRemove = gatherFieldsToRemove();
    m_itemsToChange = ExifUtil::changedFieldsDictionary(*this->efi());
    routeToSidecar();
}

QSet<QString> ExifRunnerSaveOperation::gatherFieldsToRemove() const
{
    return ExifUtil::removedFieldsSet(*efi());
}

void ExifRunnerSaveOperation::run()
{
    if (FileReplacement *staged = runUntilFlush()) {
        FileReplacement::flushTogether({staged});
        runAfterFlush();
    }
}

FileReplacement *ExifRunnerSaveOperation::runUntilFlush()
{
    m_runErrors = std::make_shared<ErrorMessages>(fileName());
    m_revert.reset();
    QStringList failures;
    const QStringList arguments = exifToolArguments(&failures);
    sidecarArguments(&failures);
    if (!failures.isEmpty()) {
        // Nothing is written rather than a file with one edit quietly missing; the edits stay
        // pending so the user can correct them.
        for (const QString &failure : std::as_const(failures))
            m_runErrors->addError(failure);
        storeResults(m_runErrors, std::nullopt);
        return nullptr;
    }
    // An edit of XMP tags alone leaves a raw file with a sidecar untouched.
    if (writesFile()) {
        // What the file held in these tags, so the save can be taken back: as it was read when
        // the file is untouched since, otherwise asked of ExifTool.
        const QStringList keys = m_itemsToChange.keys() + m_itemsToRemove.values();
        const std::optional<FileIdentity> read = efi()->identity();
        if (read && FileIdentity::of(fileName()) == read)
            m_revert = RevertRecord::fromEarlierRead(fileName(), keys, efi()->originalExifData());
        if (!m_revert)
            m_revert =
                RevertRecord::captureBeforeSave(exifToolSession(), fileName(), keys, *m_runErrors);
        if (stageWrite(arguments, *m_runErrors))
            return stagedReplacement();
    }
    runAfterFlush();
    return nullptr;
}

void ExifRunnerSaveOperation::runAfterFlush()
{
    ErrorMessages &errors = *m_runErrors;
    WriteResult result;
    if (writesFile()) {
        result = completeWrite(errors);
        if (result.replaced)
            RevertRecord::storeAfterSave(fileName(), std::move(m_revert), efi()->originalExifData(),
                                         result.reRead, errors);
    }
    // A file changed by someone else is left whole, sidecar included.
    if (!m_sidecarPath.isEmpty() && !result.leftAlone)
        writeSidecar(errors, result);
    storeResults(std::move(m_runErrors),
                 reReads() ? std::move(result.reRead) : std::optional<TagDictionary>());
}

void ExifRunnerSaveOperation::postProcessInMainThread()
{
    FileRewriteOperation::postProcessInMainThread();
    const std::optional<TagDictionary> data = oldData();
    if (!reReads() || !data)
        return;
    // A value ExifTool stores in its own form ("59.33455" for the map's "59.334550") is saved
    // all the same; keeping the typed form would leave the file looking edited after the save.
    for (const TagDictionary *written : {&m_itemsToChange, &m_sidecarChanges}) {
        for (auto it = written->cbegin(); it != written->cend(); ++it) {
            const QString &value = it.value();
            const auto found = data->constFind(it.key());
            if (isListWithoutItems(it.key(), value) && found == data->cend() &&
                efi()->exifValue(it.key()) == value) {
                efi()->removeExifValue(it.key());
                continue;
            }
            const bool isShift = isDateRepresentation(representationOf(
                                     ExifFieldsController::defaultInstance()->field(it.key()))) &&
                                 isDateOffsetText(value);
            if (value.isEmpty() || isShift || found == data->cend() || found.value() == value ||
                efi()->exifValue(it.key()) != value) {
                continue;
            }
            if (readsBackAsWritten(it.key(), value, *data))
                efi()->setExifValue(it.key(), found.value());
        }
    }
}

QStringList ExifRunnerSaveOperation::exifToolArguments(QStringList *failures) const
{
    return gatherExifToolArgumentsToChange(convertValuesToChange(m_itemsToChange, failures)) +
           gatherExifToolArgumentsToRemove(m_itemsToRemove) + otherExifFileArguments();
}

TagDictionary ExifRunnerSaveOperation::convertValuesToChange(const TagDictionary &changes,
                                                             QStringList *failures)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    TagDictionary converted;
    bool writesIptc = false;
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        const QString &key = it.key();
        const QString &value = it.value();
        writesIptc = writesIptc || key.startsWith(QStringLiteral("IPTC:"));
        const ExifFieldPtr field = catalogue->field(key);
        const bool isShift = isDateOffsetText(value);
        switch (representationOf(field)) {
        case FieldDataRepresentation::DateTime:
            converted.insert(
                key, isShift ? formatDateOffsetForWriting(value, DateEditorTypeDateTime) : value);
            break;
        case FieldDataRepresentation::Date:
            if (isShift) {
                converted.insert(key, formatDateOffsetForWriting(value, DateEditorTypeDate));
            } else if (value.isEmpty() || value.section(u' ', 0, 0).split(u':').size() >= 3) {
                converted.insert(key, value.isEmpty() ? value : normalizeDateForWriting(value));
            } else if (failures) {
                failures->append(tr("The value \"%1\" of %2 is not a valid date.")
                                     .arg(value, titleOf(field, key)));
            }
            break;
        case FieldDataRepresentation::Number:
            if (value.isEmpty()) {
                converted.insert(key, value);
            } else if (const auto number = formatNumberForExifTool(value, *field)) {
                converted.insert(key, *number);
            } else if (failures) {
                failures->append(tr("The value \"%1\" of %2 is not a valid number.")
                                     .arg(value, titleOf(field, key)));
            }
            break;
        default:
            if (const QStringList over = field ? field->itemsOverByteLimit(value) : QStringList();
                !over.isEmpty() && failures) {
                // ExifTool would cut it, and other programs would read the cut text.
                for (const QString &item : over) {
                    failures->append(QCoreApplication::translate(
                                         "ExifRunnerSaveOperation",
                                         "The value \"%1\" of %2 is longer than IPTC allows (at "
                                         "most %n byte(s)), so the file was not changed.",
                                         nullptr, int(field->maxBytes()))
                                         .arg(item, titleOf(field, key)));
                }
                break;
            }
            converted.insert(key, isNumericType(field) ? plainNumberText(value) : value);
            break;
        }
    }
    if (writesIptc)
        converted.insert(QStringLiteral("CodedCharacterSet"), IptcUtf8);
    return converted;
}

std::optional<QString> ExifRunnerSaveOperation::formatNumberForExifTool(const QString &text,
                                                                        const ExifField &field)
{
    // What the user typed in their own locale; a value in ExifTool's own form still reads.
    std::optional<double> number = parseNumber(text, QLocale());
    if (!number)
        number = parseNumber(text, QLocale::c());
    if (!number)
        return std::nullopt;
    // Plain digits and a point in every locale: ExifTool reads "12,345" as 12.
    if (field.decimals() < 0)
        return QLocale::c().toString(*number, 'f', QLocale::FloatingPointShortest);
    NumberFormatter formatter(QLocale::c());
    formatter.setMaximumFractionDigits(int(std::min<qint64>(field.decimals(), 340)));
    return formatter.stringFromNumber(*number);
}

std::optional<QString> ExifRunnerSaveOperation::identifyMaker(const TagDictionary &values)
{
    return CameraMakers::makerOfMake(values.value(QStringLiteral("IFD0:Make")));
}

QStringList ExifRunnerSaveOperation::gatherExifToolArgumentsToChange(const TagDictionary &converted)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    QStringList arguments;
    for (auto it = converted.cbegin(); it != converted.cend(); ++it) {
        const QString &key = it.key();
        const QString &value = it.value();
        const FieldDataRepresentation representation = representationOf(catalogue->field(key));
        if (isDateRepresentation(representation) && isDateOffsetText(value)) {
            // The quotes reach ExifTool as part of the value, which it accepts for a shift.
            const QString shift =
                value.contains(u'+') ? QStringLiteral("+=") : QStringLiteral("-=");
            arguments.append(u'-' + key + shift + u'\'' + value.mid(1) + u'\'');
        } else if (representation == FieldDataRepresentation::Strings) {
            const QStringList items = splitStringsItems(value);
            // Only separators and blanks: a list without items, which is no list at all.
            if (items.isEmpty())
                arguments.append(u'-' + key + u'=');
            for (const QString &item : items)
                arguments.append(u'-' + key + u'=' + item);
        } else {
            arguments.append(u'-' + writtenForm(key) + u'=' + value);
        }
    }
    return arguments;
}

QStringList ExifRunnerSaveOperation::gatherExifToolArgumentsToRemove(const QSet<QString> &keys)
{
    QStringList arguments;
    for (const QString &key : keys)
        arguments.append(u'-' + writtenForm(key) + u'=');
    return arguments;
}

QString ExifRunnerSaveOperation::writtenForm(const QString &key)
{
    // ExifTool takes a language alternative named without a language for all of its languages
    // and drops the others; the row edits the default one only.
    const ExifFieldPtr field = ExifFieldsController::defaultInstance()->field(key);
    if (field && field->dataType() == FieldDataType::LangAlt)
        return key + QStringLiteral("-x-default");
    return key;
}

QStringList ExifRunnerSaveOperation::otherExifFileArguments()
{
    QStringList arguments{QStringLiteral("-n"),    QStringLiteral("-lang"),
                          QStringLiteral("en"),    QStringLiteral("-charset"),
                          QStringLiteral("UTF-8"), QStringLiteral("-X")};
    arguments += MetadataReader::structureArguments();
    if (UserSettings::forceFixBase())
        arguments.append(QStringLiteral("-F"));
    if (UserSettings::ignoreMinorErrors())
        arguments.append(QStringLiteral("-m"));
    return arguments;
}

void ExifRunnerSaveOperation::verifyWrittenValues(const TagDictionary &written,
                                                  ErrorMessages &errors)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    for (auto it = m_itemsToChange.cbegin(); it != m_itemsToChange.cend(); ++it) {
        if (!readsBackAsWritten(it.key(), it.value(), written)) {
            errors.addWarning(tr("%1 (%2) did not read back as written.")
                                  .arg(titleOf(catalogue->field(it.key()), it.key()), it.key()));
        }
    }
    for (const QString &key : std::as_const(m_itemsToRemove)) {
        if (written.contains(key)) {
            errors.addWarning(tr("%1 (%2) is still in the file after its removal.")
                                  .arg(titleOf(catalogue->field(key), key), key));
        }
    }
}

bool ExifRunnerSaveOperation::readsBackAsWritten(const QString &key, const QString &value,
                                                 const TagDictionary &written) const
{
    const auto found = written.constFind(key);
    if (value.isEmpty() || isListWithoutItems(key, value))
        return found == written.cend();
    if (found == written.cend())
        return false;
    const QString &got = found.value();
    const ExifFieldPtr field = ExifFieldsController::defaultInstance()->field(key);
    const FieldDataRepresentation representation = representationOf(field);

    switch (representation) {
    case FieldDataRepresentation::Date:
    case FieldDataRepresentation::DateTime: {
        if (!isDateOffsetText(value))
            break;
        // A shift is checked against the original it was applied to; ExifTool keeps the
        // original's zone, and a date without a time stays one.
        const QString original = efi()->originalExifData().value(key);
        const bool dateOnly =
            representation == FieldDataRepresentation::Date ||
            !parseDateValueOfType(withoutDateZone(original), DateEditorTypeDateTime);
        const QDateTime expected = applyDateOffset(
            value,
            dateOnly ? withoutDateZone(original).section(u' ', 0, 0) + u" 00:00:00" : original);
        if (!expected.isValid())
            return false;
        const QString expectedText =
            (dateOnly ? formatDateValue(expected) : formatDateTimeValue(expected)) +
            dateZoneSuffix(original);
        return valuesEqualForRepresentation(
            got, expectedText, dateOnly ? FieldDataRepresentation::Date : representation);
    }
    case FieldDataRepresentation::Number: {
        const auto expected = formatNumberForExifTool(value, *field);
        const auto expectedNumber = expected ? parseNumber(*expected, QLocale::c()) : std::nullopt;
        std::optional<double> gotNumber = field->createFormatter()->numberFromString(got);
        if (!gotNumber)
            gotNumber = leadingNumber(got);
        return expectedNumber && numbersMatch(*gotNumber, *expectedNumber, field->decimals());
    }
    case FieldDataRepresentation::Structure:
        return valuesEqualForRepresentation(got, value, representation);
    case FieldDataRepresentation::None: {
        if (isNumericType(field)) {
            bool isNumber = false;
            const double expected = QLocale::c().toDouble(plainNumberText(value), &isNumber);
            if (isNumber && numbersMatch(leadingNumber(got), expected, -1))
                return true;
        }
        // Not for a text made only of blanks, which the read keeps.
        if (const QStringView kept = withoutTrailingBlanks(value);
            !kept.isEmpty() && kept.size() < value.size() && got == kept)
            return true;
        break;
    }
    default:
        break;
    }
    return valuesEqualForRepresentation(got, value, representation);
}
