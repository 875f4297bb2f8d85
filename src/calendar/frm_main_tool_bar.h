#pragma once

#include "calendar/frm_main_command_table.h"

#include <QFrame>

class QToolButton;

/// The tools as images with a word below. Each has a twin, "..._DISABLED", that stands in its place while it may not be
/// used. Under the mouse a larger copy, imgZoom, covers a tool and takes the click.
class ToolBar : public QFrame
{
public:
    explicit ToolBar(QWidget* parent = nullptr);

    std::function<void(const Command&)> Chosen; ///< a tool was clicked

    /// Shows the tools that are to be seen, and enables them by their rules.
    void ActivateAllowed();
    /// Disables all tools but one, "" for none.
    void Deactivate(const QString& usableTool);
    /// The tool can be seen and used.
    bool Shows(const char* name) const;

protected:
    bool eventFilter(QObject* target, QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct Tool
    {
        const Command& Of;
        QToolButton* Image;
        QToolButton* Disabled;
    };

    static QToolButton* MakeImage(const Command& command, const QString& name);
    static void SetTool(const Tool& tool, bool enabled);
    void ShowZoom(const Tool& tool);

    std::vector<Tool> tools_;
    const Command* hovered_ = nullptr; ///< the tool under imgZoom
    QToolButton* imgZoom = nullptr;
};
