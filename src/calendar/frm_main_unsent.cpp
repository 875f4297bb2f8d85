#include "calendar/frm_main_unsent.h"

#include "foundation/common_services.h"
#include "foundation/failure_words.h"
#include "foundation/frm_captions.h"
#include "mail/mail_component.h"

#include <QHBoxLayout>

namespace
{
/// Whom the message that failed last was for, and how many there are.
QString UnsentText()
{
    const QVector<UnsentNotice>& unsent = UnsentNotices();
    if (unsent.isEmpty())
        return {};
    constexpr Text kOne = {"An e-mail to {address} could not be sent ({reason}).",
                           "Un courriel destiné à {address} n'a pu être envoyé ({reason})."};
    constexpr Text kSeveral = {"{count} e-mails could not be sent, the last one to {address} ({reason}).",
                               "{count} courriels n'ont pu être envoyés, le dernier à {address} ({reason})."};
    return T(unsent.size() == 1 ? kOne : kSeveral, {{"count", QString::number(unsent.size())},
                                                    {"address", unsent.last().Message.Address.simplified()},
                                                    {"reason", FailureWords(unsent.last().Reason.simplified())}});
}
} // namespace

UnsentLine::UnsentLine(DataControl& datAbsence, QWidget* parent)
    : QFrame(parent), datAbsence_(datAbsence), lblUnsent(AsNotice(WrappedLabel("lblUnsent")))
{
    setObjectName("fraUnsent");
    auto* cmdSendAgain = MakeButton("cmdSendAgain", {"Send a&gain", "En&voyer de nouveau"});
    auto* cmdForget = MakeButton("cmdForget", {"Do &not send", "&Ne pas envoyer"});
    connect(cmdSendAgain, &QPushButton::clicked, this, &UnsentLine::cmdSendAgain_Click);
    connect(cmdForget, &QPushButton::clicked, this, &UnsentLine::cmdForget_Click);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(lblUnsent, 1);
    row->addWidget(cmdForget);
    row->addWidget(cmdSendAgain);
    FollowLanguage(this, [this] { Refresh(); });
}

void UnsentLine::Refresh()
{
    const QString text = UnsentText();
    const bool hadFocus = isAncestorOf(focusWidget());
    lblUnsent->setText(text);
    setVisible(!text.isEmpty());
    if (hadFocus && text.isEmpty())
        Emptied();
}

void UnsentLine::cmdSendAgain_Click()
{
    try {
        SendUnsentNotices(datAbsence_);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
    Refresh();
}

void UnsentLine::cmdForget_Click()
{
    ForgetUnsentNotices();
    Refresh();
}
