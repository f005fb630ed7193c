#include "editors/configurationviewcontroller.h"

#include "editors/configurationview.h"
#include "editors/dateeditor.h"
#include "editors/dateoffseteditor.h"
#include "editors/enumeditor.h"
#include "editors/groupeditor.h"
#include "editors/multienumeditor.h"
#include "editors/readonlyeditor.h"
#include "editors/sectioneditor.h"
#include "editors/stringseditor.h"
#include "editors/structureeditor.h"
#include "editors/texteditor.h"

#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "controls/wheelguard.h"
#include "engine/editsession.h"
#include "values/cameramakers.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPalette>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>

namespace {

const QString MakeKey = QStringLiteral("IFD0:Make");
const QColor FormBackground = QColor::fromRgbF(0.796f, 0.796f, 0.796f, 1.0f);

QString makerName(const QString &make)
{
    return CameraMakers::makerOfMake(make).value_or(CameraMakers::unknownMaker());
}

bool fitsMaker(const FieldEditor *editor, const std::optional<QString> &maker)
{
    const QString &fieldMaker = editor->field()->maker();
    return fieldMaker.isEmpty() || (maker && fieldMaker == *maker);
}

} // namespace

ConfigurationViewController::ConfigurationViewController(QObject *parent,
                                                         const ExifFieldsController *catalogue)
    : QObject(parent)
    , m_catalogue(catalogue ? catalogue : ExifFieldsController::defaultInstance())
{
    m_scrollArea = new QScrollArea;
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view = new ConfigurationView;
    m_view->setFixedHeight(0);
    m_scrollArea->setWidget(m_view);
    connect(m_view, &ConfigurationView::widthChanged, this,
            &ConfigurationViewController::followWidth);
}

ConfigurationViewController::~ConfigurationViewController()
{
    qDeleteAll(m_groupEditors);
    // The rows are children of this controller but watch the view: they go first.
    qDeleteAll(m_fields);
    m_fields.clear();
    // Unless the owner took it into a layout, the scroll area is ours.
    if (m_scrollArea && !m_scrollArea->parent())
        delete m_scrollArea.data();
}

QScrollArea *ConfigurationViewController::scrollArea() const
{
    return m_scrollArea;
}

QWidget *ConfigurationViewController::view() const
{
    return m_view;
}

void ConfigurationViewController::setEditSession(EditSession *session)
{
    m_session = session;
    for (FieldEditor *editor : std::as_const(m_fields))
        editor->setEditSession(session);
}

double ConfigurationViewController::calculateMaxLabelWidth(const QList<GroupPtr> &groups)
{
    const QFontMetricsF metrics(ApertureTheme::labelFont(true));
    double width = 0;
    bool any = false;
    for (const GroupPtr &group : groups) {
        for (const SectionPtr &section : group->sections()) {
            for (const ExifFieldPtr &field : section->fields()) {
                if (!field->rowKey().isEmpty())
                    continue;
                width = std::max(width, metrics.horizontalAdvance(field->title() + u':'));
                any = true;
            }
        }
    }
    return any ? width + 5.0 : 0.0;
}

void ConfigurationViewController::createUserInterface()
{
    if (m_isBuilt)
        return;
    m_isBuilt = true;
    m_theme = ApertureTheme::Key;
    m_view->setBackgroundColor(FormBackground);
    // The application's light-on-dark text would vanish on the form's light grey, so the form's
    // own labels turn dark; headings keep the theme's dark band, and popups opened from a row
    // keep its light text.
    m_view->setStyleSheet(
        u"ConfigurationView > QLabel { color: rgb(20, 20, 20); }"
        "ConfigurationView > QLabel:disabled { color: rgb(90, 90, 90); }"
        "QLabel#fieldValue { color: rgb(235, 235, 235);"
        " background: rgba(0, 0, 0, 90); border: 1px solid rgba(255, 255, 255, 60);"
        " border-radius: 3px; padding: 0px 4px; }"
        // Also makes "Multiple values" a half-transparent white, readable
        // on the darkened fields over the grey.
        "ConfigurationView > QLineEdit { color: rgb(245, 245, 245); }"
        "QLabel#heading { color: rgb(235, 235, 235);"
        " background: rgb(56, 56, 56); }"_qs);
    m_view->setUpdatesEnabled(false);

    const QList<GroupPtr> &groups = m_catalogue->groups();
    m_maxLabelWidth = calculateMaxLabelWidth(groups);
    int top = 0;
    QList<FieldEditor *> allEditors;
    allEditors.reserve(m_catalogue->configurations().size());
    for (const GroupPtr &group : groups) {
        auto *groupEditor = new GroupEditor(group->name(), localized(group->name()));
        m_groupEditors.append(groupEditor);
        top = groupEditor->createInParent(m_view, top, m_groupEditors.size() == 1);
        for (const SectionPtr &section : group->sections()) {
            auto *sectionEditor = new SectionEditor(section->name(), localized(section->name()));
            groupEditor->sectionEditors().append(sectionEditor);
            top = sectionEditor->createInParent(m_view, top, false);
            if (QPushButton *button = sectionEditor->additionalButton()) {
                connect(button, &QPushButton::clicked, this, [this] {
                    if (m_showMapAction)
                        m_showMapAction();
                });
            }
            for (const ExifFieldPtr &field : section->fields()) {
                // A copy of a property that another row shows and writes.
                if (!field->rowKey().isEmpty())
                    continue;
                const qsizetype first = allEditors.size();
                top = createFieldEditor(field, allEditors, top);
                sectionEditor->editors().append(allEditors.mid(first));
            }
        }
    }
    m_fields = allEditors;
    setFormHeight(top);
    m_scrollArea->setAutoFillBackground(true);
    QPalette palette = m_scrollArea->palette();
    palette.setColor(QPalette::Window, FormBackground);
    m_scrollArea->setPalette(palette);
    for (FieldEditor *editor : std::as_const(m_fields))
        editor->setTheme(m_theme);
    // A wheel turned to scroll the form must not edit the drop-down that passes under it.
    (new WheelGuard(this))->watch(m_view);
    m_view->setUpdatesEnabled(true);
}

int ConfigurationViewController::createFieldEditor(const ExifFieldPtr &field,
                                                   QList<FieldEditor *> &allEditors, int top)
{
    FieldEditor *editor = nullptr;
    if (!field->writable()) {
        editor = new ReadonlyEditor(field, this);
    } else {
        switch (field->dataRepresentation()) {
        case FieldDataRepresentation::None:
        case FieldDataRepresentation::Number:
        case FieldDataRepresentation::Fraction:
        case FieldDataRepresentation::Longitude:
        case FieldDataRepresentation::Latitude:
            editor = new TextEditor(field, this);
            break;
        case FieldDataRepresentation::Date:
        case FieldDataRepresentation::DateTime: {
            const DateEditorType type = field->dataRepresentation() == FieldDataRepresentation::Date
                                            ? DateEditorTypeDate
                                            : DateEditorTypeDateTime;
            if (m_showRemove) {
                auto *offsetEditor = new DateOffsetEditor(field, this);
                offsetEditor->setDateEditorType(type);
                editor = offsetEditor;
            } else {
                auto *dateEditor = new DateEditor(field, this);
                dateEditor->setDateEditorType(type);
                editor = dateEditor;
            }
            break;
        }
        case FieldDataRepresentation::Enum:
            editor = new EnumEditor(field, this);
            break;
        case FieldDataRepresentation::MultiEnum:
            editor = new MultiEnumEditor(field, this);
            break;
        case FieldDataRepresentation::Strings:
            editor = new StringsEditor(field, this);
            break;
        case FieldDataRepresentation::Structure:
            editor = new StructureEditor(field, this);
            break;
        default:
            throw TagsmithException(TagsmithException::Unimplemented,
                                    TagsmithException::Unimplemented);
        }
    }
    editor->setMaxLabelWidth(m_maxLabelWidth);
    editor->setBoldFontOnChange(true);
    editor->setShowRemoveButton(m_showRemove);
    editor->setTheme(m_theme);
    editor->setEditSession(m_session);
    const int next = editor->createEditor(m_view, top);
    allEditors.append(editor);
    return next;
}

void ConfigurationViewController::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    m_exifFiles = files;
    // One repaint at the end instead of one per moved or refilled row.
    const bool wasEnabled = m_view->updatesEnabled();
    m_view->setUpdatesEnabled(false);
    if (files.isEmpty()) {
        clearEditors();
    } else {
        QStringList keys;
        keys.reserve(m_fields.size());
        for (const FieldEditor *editor : std::as_const(m_fields))
            keys.append(editor->field()->xmlName());
        const ExifFilesSnapshot snapshot(m_exifFiles, keys);
        for (FieldEditor *editor : std::as_const(m_fields))
            editor->setExifFiles(m_exifFiles);
    }
    layoutForm(gatherImageMaker(files));
    m_view->setUpdatesEnabled(wasEnabled);
}

std::optional<QString>
ConfigurationViewController::gatherImageMaker(const QList<ExifFileInfoPtr> &files)
{
    std::optional<QString> maker;
    for (const ExifFileInfoPtr &file : files) {
        const QString name = makerName(file->exifValue(MakeKey));
        if (!maker)
            maker = name;
        else if (*maker != name)
            return std::nullopt;
    }
    return maker;
}

void ConfigurationViewController::layoutForm(const std::optional<QString> &maker)
{
    // Positions depend on the maker alone, so the same maker leaves every row where it is.
    if (m_laidOutFor && *m_laidOutFor == maker)
        return;
    m_laidOutFor = maker;
    int top = 0;
    for (GroupEditor *group : std::as_const(m_groupEditors)) {
        top = group->showEditor(top);
        for (SectionEditor *section : group->sectionEditors()) {
            const QList<FieldEditor *> &editors = section->editors();
            const bool shown = std::any_of(editors.cbegin(), editors.cend(),
                                           [&maker](auto *e) { return fitsMaker(e, maker); });
            top = shown ? section->showEditor(top) : section->hideEditor(top);
            for (FieldEditor *editor : editors)
                top = fitsMaker(editor, maker) ? editor->showEditor(top) : editor->hideEditor(top);
        }
    }
    setFormHeight(top);
}

void ConfigurationViewController::setExifConfiguration(const Preset *configuration)
{
    if (!configuration) {
        clearEditors();
        setEnabled(false);
        return;
    }
    for (FieldEditor *editor : std::as_const(m_fields)) {
        editor->setExifConfiguration(configuration);
        editor->updateRemovalHint();
    }
}

bool ConfigurationViewController::copyToConfiguration(Preset &configuration)
{
    bool changed = false;
    for (FieldEditor *editor : std::as_const(m_fields))
        changed = editor->copyToConfiguration(configuration) || changed;
    return changed;
}

bool ConfigurationViewController::copyToFileInfos(const QList<ExifFileInfoPtr> &files)
{
    bool changed = false;
    for (FieldEditor *editor : std::as_const(m_fields))
        changed = editor->copyToExifFiles(files) || changed;
    return changed;
}

void ConfigurationViewController::commitPendingInput()
{
    for (FieldEditor *editor : std::as_const(m_fields))
        editor->commitPendingInput();
}

void ConfigurationViewController::clearEditors()
{
    for (FieldEditor *editor : std::as_const(m_fields))
        editor->clearEditor();
}

void ConfigurationViewController::setEnabled(bool enabled)
{
    for (FieldEditor *editor : std::as_const(m_fields))
        editor->setEnabled(enabled);
}

int ConfigurationViewController::formHeight() const
{
    return m_formHeight;
}

void ConfigurationViewController::setFormHeight(int height)
{
    m_formHeight = height;
    m_view->setFixedHeight(height);
}

void ConfigurationViewController::followWidth(int width)
{
    for (GroupEditor *group : std::as_const(m_groupEditors)) {
        group->setWidth(width);
        for (SectionEditor *section : group->sectionEditors())
            section->setWidth(width);
    }
}

void ConfigurationViewController::logHierarchy() const
{
    qCInfo(lcTagsmith).noquote() << hierarchicalDescriptionOfView(m_view, 0);
}

QString ConfigurationViewController::hierarchicalDescriptionOfView(const QWidget *view, int level)
{
    if (!view)
        return QString();
    const QRect g = view->geometry();
    QString text =
        QString(level * 2, u' ') +
        u"%1 (%2, %3, %4 x %5)%6\n"_qs.arg(QString::fromLatin1(view->metaObject()->className()))
            .arg(g.x())
            .arg(g.y())
            .arg(g.width())
            .arg(g.height())
            .arg(view->isHidden() ? u" hidden"_qs : QString());
    for (const QObject *child : view->children()) {
        if (const auto *widget = qobject_cast<const QWidget *>(child))
            text += hierarchicalDescriptionOfView(widget, level + 1);
    }
    return text;
}
