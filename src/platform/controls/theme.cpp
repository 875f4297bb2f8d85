#include "platform/controls/theme.h"

#include "platform/ink.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <utility>

/// A static library keeps its resources only when somebody asks for them by name, outside any namespace.
static void LoadResources()
{
    Q_INIT_RESOURCE(pictures);
}

namespace
{
constexpr double kUtmostContrast = 20.5; ///< black on white, or nearly

/// What a name stands for: light, dark, dark on white, light on black. One value alone holds for all.
struct ThemeEntry
{
    const char* Name;
    const char* In[4];
};

constexpr ThemeEntry kTheme[] = {
    {"page", {"#eef1f5", "#1b1f27", "#ffffff", "#000000"}},
    {"card", {"#ffffff", "#242a34", "#ffffff", "#000000"}},
    {"field", {"#ffffff", "#1d222b", "#ffffff", "#000000"}},
    {"text", {"#1b2330", "#e4e8ef", "#000000", "#ffffff"}},
    {"head", {"#14213d", "#f2f5fa", "#000000", "#ffffff"}},
    {"caption", {"#5b6577", "#a9b3c4", "#000000", "#ffffff"}},
    {"faint", {"#99a2b1", "#727d90", "#555555", "#b0b0b0"}}, // what is disabled
    {"off", {"#f5f7fa", "#20252e", "#f2f2f2", "#1a1a1a"}},   // the ground of what is disabled
    {"line", {"#d9dee7", "#363e4b", "#000000", "#ffffff"}},
    {"edge", {"#b7c0cf", "#566173", "#000000", "#ffffff"}}, // of what can be typed into or pressed
    {"edge-near", {"#8d99ad", "#8491a8", "#003a9e", "#ffff00"}},
    {"hover", {"#f1f5fb", "#2d3541", "#e0ecff", "#1a2a4d"}},
    {"pressed", {"#e2e9f4", "#39434f", "#c8dcff", "#24407a"}},
    {"tint", {"#e3ecfb", "#2b3b59", "#dbe8ff", "#14264f"}}, // what is marked
    {"tint-edge", {"#b9cff5", "#4d72b8", "#003a9e", "#ffff00"}},
    {"active", {"#d3e2fb", "#2f4a7d", "#c8dcff", "#1b3a7a"}}, // the tool in use
    {"accent", {"#2f6fde", "#7fabff", "#003a9e", "#ffff00"}}, // focus, links
    {"main", {"#2f6fde", "#2f6fde", "#003a9e", "#0b3fa8"}},   // the main button, chosen entries
    {"main-text", {"#ffffff"}},
    {"main-edge", {"#2f6fde", "#2f6fde", "#003a9e", "#ffffff"}},
    {"main-hover", {"#2862c8", "#2862c8", "#002d7a", "#0a3690"}},
    {"main-pressed", {"#2256b2", "#2256b2", "#00205a", "#082b73"}},
    {"main-focus", {"#14356f", "#cfe0ff", "#000000", "#ffff00"}},
    {"main-off", {"#b3c8ee", "#2c3f63", "#f2f2f2", "#1a1a1a"}},
    {"main-off-text", {"#f6f9ff", "#8fa3c8", "#555555", "#b0b0b0"}},
    {"chosen-away", {"#4573c6", "#3f62a3", "#1f4f9e", "#0a3690"}}, // an entry of a window that is not in use
    {"progress", {"#7ba6f0", "#2862c8", "#9dbdff", "#0b3fa8"}},
    {"tab", {"#e3e8f0", "#1f242d", "#e6e6e6", "#1a1a1a"}},
    {"tab-text", {"#39445a", "#c3cad6", "#000000", "#ffffff"}},
    {"notice", {"#fff7e0", "#3d3413", "#fff7c2", "#332b00"}},
    {"notice-edge", {"#e2c36b", "#8a7430", "#000000", "#ffd800"}},
    {"danger", {"#b3261e", "#ff8f86", "#8b0000", "#ff9c94"}},
    {"missing", {"#fdeeec", "#46211f", "#ffe8e6", "#4d0d0a"}},
    {"tip", {"#14213d", "#e4e8ef", "#000000", "#ffffff"}},
    {"tip-text", {"#ffffff", "#14213d", "#ffffff", "#000000"}},
    {"paper", {"#ffffff"}},
    {"paper-off", {"#f5f7fa"}},
    {"shade", {"", "-light", "", "-light"}}, // what ends the names of pictures
};

constexpr std::pair<QPalette::ColorRole, const char*> kRoles[] = {
    {QPalette::WindowText, "text"},     {QPalette::Text, "text"},
    {QPalette::ButtonText, "text"},     {QPalette::Base, "field"},
    {QPalette::AlternateBase, "off"},   {QPalette::Highlight, "main"},
    {QPalette::Link, "accent"},         {QPalette::HighlightedText, "main-text"},
    {QPalette::LinkVisited, "caption"}, {QPalette::PlaceholderText, "caption"},
    {QPalette::ToolTipBase, "tip"},     {QPalette::ToolTipText, "tip-text"},
};

Scheme schemeInForce = Scheme::Light;

/// Null for a name that is not in the table.
const char* ThemeValue(const QString& name)
{
    const auto* entry =
        std::find_if(std::begin(kTheme), std::end(kTheme), [&name](const ThemeEntry& its) { return name == its.Name; });
    if (entry == std::end(kTheme))
        return nullptr;
    const char* value = entry->In[static_cast<int>(schemeInForce)];
    return value ? value : entry->In[0];
}

QPalette ThemePalette()
{
    QPalette palette(ThemeColor("card"), ThemeColor("page"));
    for (const auto& [role, name] : kRoles)
        palette.setColor(role, ThemeColor(name));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, ThemeColor("faint"));
    return palette;
}

/// The desktop's colours come into force for a moment, so that they can be asked for.
void TakeUpDesktop()
{
    const Scheme before = schemeInForce;
    QApplication::setPalette(QPalette());
    const Scheme scheme = DesktopScheme();
    if (scheme == before)
        QApplication::setPalette(ThemePalette());
    else
        ApplyTheme(scheme);
}

/// The toolkit tells each window that the desktop looks otherwise, or some desktops set their colours themselves; they
/// are taken up once for all.
class DesktopFollower : public QObject
{
public:
    explicit DesktopFollower(QObject* parent) : QObject(parent)
    {
        soon_.setSingleShot(true);
        connect(&soon_, &QTimer::timeout, this, [this] {
            const bool foreign = QApplication::palette().color(QPalette::Window) != ThemeColor("page");
            if (std::exchange(told_, false) || foreign)
                TakeUpDesktop();
        });
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        const bool told = event->type() == QEvent::ThemeChange && target->isWindowType();
        told_ = told_ || told;
        if (told || (event->type() == QEvent::ApplicationPaletteChange && target == qApp))
            soon_.start(0);
        return false;
    }

private:
    QTimer soon_;
    bool told_ = false; ///< by a window
};
} // namespace

Scheme SchemeOf(const QPalette& desktop, const QString& themeName)
{
    const QColor window = desktop.color(QPalette::Window), text = desktop.color(QPalette::WindowText);
    const QString name = QString(themeName).remove('-').remove(' ').toLower();
    const bool dark = window.lightness() < text.lightness() || name.endsWith("dark") || name.contains("inverse");
    if (Contrast(window, text) > kUtmostContrast || name.contains("highcontrast"))
        return dark ? Scheme::ContrastDark : Scheme::ContrastLight;
    return dark ? Scheme::Dark : Scheme::Light;
}

Scheme DesktopScheme()
{
    const int wanted = QStringList{"light", "dark", "contrast", "contrast-dark"}.indexOf(
        qEnvironmentVariable("TARVELL_SCHEME").toLower());
    return wanted < 0 ? SchemeOf(QApplication::palette(), qEnvironmentVariable("GTK_THEME"))
                      : static_cast<Scheme>(wanted);
}

void ApplyTheme(Scheme scheme)
{
    LoadResources();
    schemeInForce = scheme;
    QApplication::setPalette(ThemePalette());
    QFile sheet(":/tarvell.qss");
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(FilledSheet(QString::fromUtf8(sheet.readAll())));
}

void FollowDesktop()
{
    qApp->installEventFilter(new DesktopFollower(qApp));
}

QColor ThemeColor(const QString& name)
{
    const char* value = ThemeValue(name);
    return value ? QColor(QLatin1String(value)) : QColor();
}

QString FilledSheet(QString sheet)
{
    static const QRegularExpression kName("@([a-z][a-z-]*)");
    for (auto found = kName.match(sheet); found.hasMatch(); found = kName.match(sheet, found.capturedStart() + 1))
        if (const char* value = ThemeValue(found.captured(1)))
            sheet.replace(found.capturedStart(), found.capturedLength(), QLatin1String(value));
    return sheet;
}

QString PicturePath(const QString& name)
{
    LoadResources();
    const QString path = QStringLiteral(":/pictures/%1%2.svg");
    const QString twin = path.arg(name, QLatin1String(ThemeValue("shade")));
    return QFile::exists(twin) ? twin : path.arg(name, QString());
}
