#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

#include <functional>

/// A control with its object name. Member d of a control array is named "name(d)".
template <typename Control, typename... Arguments>
Control* Named(const QString& name, Arguments... arguments)
{
    auto* control = new Control(arguments...);
    control->setObjectName(name);
    return control;
}

inline QString ArrayName(const QString& name, int index)
{
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}

/// The form's outermost layout, with the margins and gaps that all forms share; cards and the button row go into it.
QVBoxLayout* PageLayout(QWidget* form);
/// The outermost layout of a tab's page.
QVBoxLayout* TabLayout(QWidget* page);
/// Scrolls a page where it has less room than it needs; as large as the page otherwise.
QScrollArea* ScrollingPage();
/// Fills it. It sizes every control of the page, and to move it afterwards styles each of them anew, so it stands in
/// its place by then.
void SetPage(QScrollArea* area, QWidget* page);
/// Controls side by side, the rest of the row empty.
QHBoxLayout* Row(std::initializer_list<QWidget*> controls);
/// Controls side by side or one below the other, `gap` pixels apart.
QHBoxLayout* Beside(int gap, std::initializer_list<QWidget*> controls = {});
QVBoxLayout* Stack(int gap, std::initializer_list<QWidget*> controls = {});
/// A raster of labels and controls; rows and boxes nested in it take its gaps over.
QGridLayout* Raster();
/// A white card with rounded corners on the quiet page; its layout holds the controls.
QFrame* MakeCard(QLayout* layout);
/// The looks of labels: a bold head, a small grey caption, a large figure, a notice on a ground of its own.
QLabel* AsHead(QLabel* label);
QLabel* AsCaption(QLabel* label);
QLabel* AsFigure(QLabel* label);
QLabel* AsNotice(QLabel* label);
/// A small grey caption above the control that it names.
QVBoxLayout* Captioned(QLabel* caption, QWidget* control);
/// A property that the style sheet knows; the control is styled anew when it changes.
void SetStyled(QWidget* control, const char* property, const QVariant& value);
/// The look by which the style sheet knows a control; empty for the plain one.
void SetLook(QWidget* control, const char* look);
/// A button that goes off as soon as its letter is pressed. The toolkit's own first shows itself pressed for a moment,
/// and the next key overtakes it.
class PromptButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent* event) override;
};
/// The one blue main button of a form, pressed by Enter.
QPushButton* AsMainButton(QPushButton* button);
/// The same for a button that is the main one at times.
void SetMainButton(QPushButton* button, bool main);

/// As much of a size as the screen of `window` has room for, the window's frame and the desktop's bars left out.
QSize FittingScreen(const QWidget* window, const QSize& size);

/// Moves a window without another behind it to the middle of its screen.
void CentreOnScreen(QWidget* window);

/// Shows a form modally and returns its result code. Tests and the tour install a runner that works the form instead
/// of waiting for a person; an empty runner brings the waiting back.
int ShowModal(QDialog& form);
void SetModalRunner(std::function<int(QDialog&)> runner);

/// None of a group of options is chosen any longer.
void ClearOptions(std::initializer_list<QRadioButton*> options);

/// While it lives the flag is true: change and click handlers of the form stay silent.
class LoadingGuard
{
public:
    explicit LoadingGuard(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~LoadingGuard() { flag_ = before_; }
    LoadingGuard(const LoadingGuard&) = delete;
    LoadingGuard& operator=(const LoadingGuard&) = delete;

private:
    bool& flag_;
    bool before_;
};

/// The hourglass while it lives.
class BusyPointer
{
public:
    BusyPointer();
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

/// Brings the tab to the front on which a control stands.
void ShowTabOf(QWidget* control);
/// Gives a field the focus back that is just being left. If it was left for another tab, its own tab returns.
void KeepFocus(QWidget* field);

/// The program's style sheet, colours, fonts and window icon, set once on the application.
void ApplyStyle();

/// A picture of the program by the name of its SVG file ("tool-create-single", "face-warning"), sharp at any scale of
/// the screen; `size` in pixels at 100 %. A name that has no file gives an empty picture.
QIcon PictureIcon(const QString& name);
QPixmap Picture(const QString& name, int size);
/// The program's own picture, "imgLogo".
QLabel* MakeLogo(int size);
