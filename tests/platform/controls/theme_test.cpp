#include "foundation/frm_captions.h"
#include "platform/controls/theme.h"
#include "platform/ink.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{
constexpr Scheme kSchemes[] = {Scheme::Light, Scheme::Dark, Scheme::ContrastLight, Scheme::ContrastDark};
constexpr double kReadableToAll = 7;

/// What is read on what.
const std::pair<const char*, QStringList> kTextsOn[] = {
    {"text", {"page", "card", "field", "hover", "pressed", "tint"}},
    {"head", {"page", "card", "tint", "active", "notice", "progress"}},
    {"caption", {"page", "card", "field"}},
    {"accent", {"card", "field"}},
    {"main-text", {"main", "main-hover", "main-pressed", "chosen-away"}},
    {"tab-text", {"tab", "hover"}},
    {"danger", {"page", "card"}},
    {"text", {"missing"}},
    {"tip-text", {"tip"}},
};

QString Sheet()
{
    QFile sheet(":/tarvell.qss");
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}

QPalette Desktop(const char* window, const char* text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(window));
    palette.setColor(QPalette::WindowText, QColor(text));
    return palette;
}

class Theme : public testing::Test
{
protected:
    ~Theme() override { ApplyTheme(Scheme::Light); }
};
} // namespace

TEST_F(Theme, EverythingCanBeReadInEachScheme)
{
    for (const Scheme scheme : kSchemes) {
        ApplyTheme(scheme);
        const bool dark = scheme == Scheme::Dark || scheme == Scheme::ContrastDark;
        const bool utmost = scheme == Scheme::ContrastLight || scheme == Scheme::ContrastDark;
        for (const auto& [text, grounds] : kTextsOn)
            for (const QString& ground : grounds)
                EXPECT_GE(Contrast(ThemeColor(text), ThemeColor(ground)), utmost ? kReadableToAll : kReadable)
                    << text << " on " << qPrintable(ground) << " in scheme " << static_cast<int>(scheme);
        const QPalette palette = QApplication::palette();
        EXPECT_EQ(palette.color(QPalette::Window).lightness() < palette.color(QPalette::Text).lightness(), dark);
        EXPECT_EQ(PicturePath("arrow-down").contains("light"), dark);
        EXPECT_EQ(PicturePath("app"), ":/pictures/app.svg");
        EXPECT_EQ(ThemeColor("paper"), QColor(Qt::white)) << "grids stay as they are";
    }
}

TEST_F(Theme, TheSheetTakesAllItsColoursFromTheTable)
{
    const QRegularExpression ofItsOwn("#[0-9a-fA-F]{3,8}\\b|\\b(white|black|red|blue|gr[ae]y|rgba?)\\b");
    const QRegularExpression picture("url\\(([^)]*)\\)");
    EXPECT_FALSE(ofItsOwn.match(Sheet().remove(QRegularExpression("\\w+#\\w+"))).hasMatch());
    for (const Scheme scheme : kSchemes) {
        ApplyTheme(scheme);
        const QString filled = qApp->styleSheet();
        EXPECT_GT(filled.size(), 1000);
        EXPECT_FALSE(filled.contains('@')) << qPrintable(filled.mid(filled.indexOf('@'), 30));
        for (auto each = picture.globalMatch(filled); each.hasNext();) {
            const QString file = each.next().captured(1);
            EXPECT_TRUE(QFile::exists(file)) << qPrintable(file);
        }
    }
}

TEST_F(Theme, FormsFollowADesktopThatChangesItsColours)
{
    ApplyTheme(Scheme::ContrastDark);
    const std::unique_ptr<QPushButton> arrow(MakeArrow("cmdNextYear", "next", {}));
    arrow->show();
    const auto picture = [&arrow] { return arrow->icon().pixmap(16).toImage(); };
    const QImage onDark = picture();
    QEvent changed(QEvent::ThemeChange);
    QCoreApplication::sendEvent(arrow->windowHandle(), &changed);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor("#eef1f5")) << "the one of the tests is light";
    EXPECT_NE(picture(), onDark);
    QApplication::setPalette(Desktop("#31363b", "#eff0f1"));
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor("#eef1f5")) << "the forms' colours go together";
}

TEST_F(Theme, TheDesktopChoosesTheScheme)
{
    EXPECT_EQ(SchemeOf(Desktop("#efefef", "#000000"), ""), Scheme::Light);
    EXPECT_EQ(SchemeOf(Desktop("#31363b", "#eff0f1"), ""), Scheme::Dark);
    EXPECT_EQ(SchemeOf(Desktop("#ffffff", "#000000"), ""), Scheme::ContrastLight);
    EXPECT_EQ(SchemeOf(Desktop("#000000", "#ffffff"), ""), Scheme::ContrastDark);
    EXPECT_EQ(SchemeOf(Desktop("#efefef", "#000000"), "Adwaita:dark"), Scheme::Dark);
    EXPECT_EQ(SchemeOf(Desktop("#efefef", "#000000"), "HighContrast"), Scheme::ContrastLight);
    EXPECT_EQ(SchemeOf(Desktop("#efefef", "#000000"), "HighContrastInverse"), Scheme::ContrastDark);
    qputenv("TARVELL_SCHEME", "contrast-dark");
    EXPECT_EQ(DesktopScheme(), Scheme::ContrastDark);
    qunsetenv("TARVELL_SCHEME");
    EXPECT_EQ(DesktopScheme(), Scheme::Light);
}
