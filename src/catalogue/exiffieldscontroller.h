#pragma once

#include "catalogue/exiffield.h"

#include <QHash>
#include <QList>

class ExifFieldsConfigurationParser;

// The process-wide catalogue. Loaded once on the main thread at start-up and read-only after,
// which is what makes reading it from background operations safe.
class ExifFieldsController
{
public:
    static ExifFieldsController *defaultInstance();

    // Loads ":/Fields.xml" and localises it through the "CustomFields" and "Fields" tables.
    void initializeConfigurations();
    // Loads another catalogue file in place of the current one (tests use their own catalogues).
    void initializeConfigurations(const QString &path, bool localizeData);

    const QList<GroupPtr> &groups() const { return m_groups; }
    // Deliberately called "configurations" although it holds fields: every field in file order.
    const QList<ExifFieldPtr> &configurations() const { return m_configurations; }
    // Tag key -> field; the later of two fields with the same key wins.
    const QHash<QString, ExifFieldPtr> &configurationsMap() const { return m_configurationsMap; }
    // The field of a tag key, or null.
    ExifFieldPtr field(const QString &xmlName) const { return m_configurationsMap.value(xmlName); }

    // The same, and for a key that names one language of a language alternative
    // ("XMP-dc:Title-de", "XMP-dc:Rights-fr-CA"), that alternative's field.
    ExifFieldPtr fieldOf(const QString &key) const;

    // On (as loaded): a property kept in several standards is one row that writes all its
    // copies. Off: every tag is a row of its own, for users who want to see each copy.
    void setLinksForms(bool on);
    bool linksForms() const { return m_linksForms; }

private:
    void take(const ExifFieldsConfigurationParser &parser);

    QList<GroupPtr> m_groups;
    QList<ExifFieldPtr> m_configurations;
    QHash<QString, ExifFieldPtr> m_configurationsMap;
    bool m_linksForms = true;
};
