#include "foundation/frm_waiting_notice.h"

#include "foundation/frm_captions.h"
#include "platform/dao/engine_thread.h"
#include "platform/mail/mail_programs.h"

#include <QApplication>
#include <QPointer>

namespace
{
constexpr int kNoticeTop = 12;

QWidget* WindowInFront()
{
    if (QWidget* window = QApplication::activeModalWidget())
        return window;
    if (QWidget* window = QApplication::activeWindow())
        return window;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            return window;
    return nullptr;
}

QLabel* MakeNotice(QWidget* window, const Text& text)
{
    QLabel* lblWaiting = AsNotice(MakeLabel("lblWaiting", text));
    lblWaiting->setParent(window);
    lblWaiting->setWordWrap(true); // the first window of a start is smaller than the notice
    lblWaiting->setAlignment(Qt::AlignCenter);
    lblWaiting->resize(lblWaiting->sizeHint().boundedTo(QSize(window->width(), QWIDGETSIZE_MAX)));
    if (lblWaiting->heightForWidth(lblWaiting->width()) > lblWaiting->height())
        lblWaiting->resize(lblWaiting->width(), lblWaiting->heightForWidth(lblWaiting->width()));
    lblWaiting->move((window->width() - lblWaiting->width()) / 2, kNoticeTop);
    lblWaiting->show();
    lblWaiting->raise();
    return lblWaiting;
}

/// Painted at once and again: the window itself stands still meanwhile.
void ShowNotice(QPointer<QLabel>& notice, bool waiting, const Text& text)
{
    if (!waiting)
        return delete notice;
    if (QWidget* window = WindowInFront(); window && !notice)
        notice = MakeNotice(window, text);
    if (notice)
        notice->window()->repaint(); // whole: a message that was just answered still covers a part of it
}
} // namespace

void InstallWaitingNotice()
{
    SetWaitingSign([](bool waiting) {
        static QPointer<QLabel> notice;
        ShowNotice(notice, waiting, {"Waiting for the database...", "En attente de la banque de données..."});
    });
    MailOnItsWay::Sign = [](bool waiting) {
        static QPointer<QLabel> notice;
        ShowNotice(notice, waiting, {"Sending e-mail...", "Envoi du courriel..."});
    };
}
