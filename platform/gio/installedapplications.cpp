#include "installedapplications.h"

#include "desktopexec.h"
#include "logging.h"
#include "programlocator.h"

#include <QCollator>

#include <algorithm>

// GIO names a struct member "signals", which Qt defines as a keyword.
#pragma push_macro("signals")
#undef signals
#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#pragma pop_macro("signals")

namespace {

QString fromUtf8(const char* text)
{
    return text ? QString::fromUtf8(text) : QString();
}

// A themed icon lists its names best first; a file icon has a path.
void readIcon(GAppInfo* info, ApplicationEntry* entry)
{
    GIcon* icon = g_app_info_get_icon(info);
    if (!icon)
        return;
    if (G_IS_THEMED_ICON(icon)) {
        const gchar* const* names = g_themed_icon_get_names(G_THEMED_ICON(icon));
        if (names && names[0])
            entry->iconName = fromUtf8(names[0]);
    } else if (G_IS_FILE_ICON(icon)) {
        gchar* path = g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon)));
        entry->iconPath = fromUtf8(path);
        g_free(path);
    }
}

bool readEntry(GAppInfo* info, ProgramLocator& locator, ApplicationEntry* entry)
{
    const DesktopExec exec(fromUtf8(g_app_info_get_commandline(info)));
    entry->desktopId = fromUtf8(g_app_info_get_id(info));
    // "env NAME=value" alone names no program to start.
    entry->executable = exec.isValid() ? exec.executable(locator) : QString();
    if (entry->executable.isEmpty()) {
        LOG_MSG(QStringLiteral("no usable Exec line in %1").arg(entry->desktopId));
        return false;
    }
    entry->name = fromUtf8(g_app_info_get_display_name(info));
    entry->description = fromUtf8(g_app_info_get_description(info));
    entry->commandLine = exec.commandLine();
    readIcon(info, entry);
    return true;
}

} // namespace

ApplicationList InstalledApplications::query()
{
    ApplicationList applications;
    ProgramLocator locator;
    GList* all = g_app_info_get_all();
    for (GList* node = all; node; node = node->next) {
        GAppInfo* info = G_APP_INFO(node->data);
        ApplicationEntry entry;
        if (g_app_info_should_show(info) && readEntry(info, locator, &entry))
            applications.append(entry);
    }
    g_list_free_full(all, g_object_unref);

    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    std::sort(applications.begin(), applications.end(),
              [&collator](const ApplicationEntry& a, const ApplicationEntry& b) {
                  return collator.compare(a.name, b.name) < 0;
              });
    return applications;
}

bool InstalledApplications::readDesktopEntry(const QByteArray& contents, ApplicationEntry* entry)
{
    GKeyFile* keyFile = g_key_file_new();
    bool listed = false;
    if (g_key_file_load_from_data(keyFile, contents.constData(), gsize(contents.size()), G_KEY_FILE_NONE, nullptr)) {
        if (GDesktopAppInfo* info = g_desktop_app_info_new_from_keyfile(keyFile)) {
            ProgramLocator locator;
            listed = g_app_info_should_show(G_APP_INFO(info)) && readEntry(G_APP_INFO(info), locator, entry);
            g_object_unref(info);
        }
    }
    g_key_file_unref(keyFile);
    return listed;
}
