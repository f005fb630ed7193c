// Times the form over the real catalogue with in-memory files: building it once, showing a
// selection of every file, and switching between two halves of the files.
//   bench_form [files=1000] [rounds=7] [--row-per-tag]
// With --row-per-tag, the copies of a property kept in several standards get a row each, as
// with the expert preference, instead of one row that shows and writes them all.

#include "catalogue/exiffieldscontroller.h"
#include "editors/configurationviewcontroller.h"
#include "editors/fieldeditor.h"
#include "engine/exiffileinfo.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollArea>
#include <QWidget>

#include <algorithm>
#include <cstdio>

namespace {

// A value of the field's kind; `variant` 0 is what most files share.
QString sampleValue(const ExifField &field, int variant)
{
    switch (field.dataRepresentation()) {
    case FieldDataRepresentation::Enum:
    case FieldDataRepresentation::MultiEnum: {
        const QStringList keys = field.values() ? field.values()->keys() : QStringList();
        return keys.isEmpty() ? QString::number(variant) : keys.at(variant % keys.size());
    }
    case FieldDataRepresentation::Date:
        return u"2024:05:%1"_qs.arg(1 + variant % 28, 2, 10, QChar(u'0'));
    case FieldDataRepresentation::DateTime:
        return u"2024:05:01 10:%1:00"_qs.arg(variant % 60, 2, 10, QChar(u'0'));
    case FieldDataRepresentation::Number:
    case FieldDataRepresentation::Fraction:
        return QString::number(1.5 + variant);
    case FieldDataRepresentation::Latitude:
    case FieldDataRepresentation::Longitude:
        return QString::number(48.1 + variant * 0.01);
    case FieldDataRepresentation::Strings:
        return u"travel,family,day %1"_qs.arg(variant);
    case FieldDataRepresentation::Structure: {
        // Two items of whatever members the structure has, the first differing between files.
        QStringList first;
        QStringList second;
        for (const ExifField::Member &member : field.members()) {
            if (member.kind == ExifField::Member::Kind::Text) {
                first.append(member.name + u"=Item %1|, one"_qs.arg(variant));
                second.append(member.name + u"=Item two"_qs);
            }
        }
        const QString items = u"{%1},{%2}"_qs.arg(first.join(u','), second.join(u','));
        return field.isStructureList() ? u'[' + items + u']' : u'{' + first.join(u',') + u'}';
    }
    default:
        return u"Value %1 of %2"_qs.arg(variant).arg(field.title());
    }
}

QList<ExifFileInfoPtr> makeFiles(const ExifFieldsController &catalogue, int count)
{
    const QList<ExifFieldPtr> &fields = catalogue.configurations();
    QList<ExifFileInfoPtr> files;
    for (int i = 0; i < count; ++i) {
        // The first half Canon, the second Nikon: every switch of halves changes the layout.
        const bool canon = i < count / 2;
        const QString maker = canon ? u"Canon"_qs : u"Nikon"_qs;
        TagDictionary data{{u"IFD0:Make"_qs, canon ? u"Canon"_qs : u"NIKON CORPORATION"_qs},
                           {u"System:FileName"_qs, u"IMG_%1.JPG"_qs.arg(i)}};
        for (qsizetype f = 0; f < fields.size(); ++f) {
            const ExifField &field = *fields.at(f);
            // About 150 tags a file, as a camera file has, and every structure.
            if (data.size() >= 150 &&
                field.dataRepresentation() != FieldDataRepresentation::Structure)
                continue;
            if (!field.maker().isEmpty() && field.maker() != maker)
                continue;
            // A third of the fields differ between files, the rest are shared.
            const int variant = f % 3 == 0 ? i % 7 : 0;
            data.insert(field.xmlName(), sampleValue(field, variant));
        }
        auto file = std::make_shared<ExifFileInfo>(u"/photos/IMG_%1.JPG"_qs.arg(i));
        file->setReadData(data);
        files.append(file);
    }
    return files;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

void showNow(ConfigurationViewController &form)
{
    QApplication::processEvents();
    form.scrollArea()->viewport()->repaint();
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int count = argc > 1 ? std::max(2, atoi(argv[1])) : 1000;
    const int rounds = argc > 2 ? std::max(1, atoi(argv[2])) : 7;

    ExifFieldsController &catalogue = *ExifFieldsController::defaultInstance();
    catalogue.initializeConfigurations();
    catalogue.setLinksForms(!app.arguments().contains(u"--row-per-tag"_qs));
    const QList<ExifFileInfoPtr> all = makeFiles(catalogue, count);
    const QList<ExifFileInfoPtr> first = all.mid(0, count / 2);
    const QList<ExifFileInfoPtr> second = all.mid(count / 2);

    QElapsedTimer timer;
    timer.start();
    ConfigurationViewController form;
    form.scrollArea()->resize(760, 900);
    form.createUserInterface();
    form.scrollArea()->show();
    showNow(form);
    std::printf("build form: %.1f ms, %lld editors, %lld fields in catalogue, %d files\n",
                timer.nsecsElapsed() / 1e6, static_cast<long long>(form.fields().size()),
                static_cast<long long>(catalogue.configurations().size()), count);

    QList<double> selectAll;
    for (int round = 0; round < rounds; ++round) {
        form.setExifFiles({});
        showNow(form);
        timer.restart();
        form.setExifFiles(all);
        showNow(form);
        selectAll.append(timer.nsecsElapsed() / 1e6);
    }
    QList<double> switching;
    for (int round = 0; round < rounds * 2; ++round) {
        timer.restart();
        form.setExifFiles(round % 2 == 0 ? first : second);
        showNow(form);
        switching.append(timer.nsecsElapsed() / 1e6);
    }
    std::printf("select all %d files and show: median %.1f ms (min %.1f, max %.1f)\n", count,
                median(selectAll), *std::min_element(selectAll.cbegin(), selectAll.cend()),
                *std::max_element(selectAll.cbegin(), selectAll.cend()));
    std::printf("switch between two selections of %d files: median %.1f ms (min %.1f, max %.1f)\n",
                count / 2, median(switching),
                *std::min_element(switching.cbegin(), switching.cend()),
                *std::max_element(switching.cbegin(), switching.cend()));
    return 0;
}
