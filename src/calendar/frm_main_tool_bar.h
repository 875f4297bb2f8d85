#pragma once

#include <QFrame>

#include <functional>
#include <map>

class QToolButton;

/// The tools as images with a word below. Each has a twin, "..._DISABLED", that stands in its place while it may not be
/// used. Under the mouse a larger copy, imgZoom, covers a tool and takes the click.
class ToolBar : public QFrame
{
public:
    explicit ToolBar(QWidget* parent = nullptr);

    std::function<void(const QString& tool)> Hovered; ///< the image under the mouse, empty when it left
    std::function<void()> Clicked;                    ///< the hovered tool was clicked

    void LoadCaptions();
    void SetTool(const QString& tool, bool shown, bool enabled);
    void HideZoom();
    static QStringList Tools();

protected:
    bool eventFilter(QObject* target, QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct Slot
    {
        QToolButton* Image = nullptr;
        QToolButton* Disabled = nullptr;
    };

    QToolButton* MakeImage(const QString& name, const QString& picture);
    void ShowZoom(QToolButton* image);

    std::map<QString, Slot> slots_;
    QToolButton* imgZoom = nullptr;
};
