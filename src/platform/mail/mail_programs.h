#pragma once

#include "platform/mail/mail_message.h"

#include <functional>

/// A way on which messages leave the workstation.
struct MailRoute
{
    std::function<bool()> IsThere; ///< its program is installed
    std::function<MailResult(const MailMessage&)> Send;
};

struct MailRoutes
{
    MailRoute Automation; ///< hands a whole message to a sendmail-compatible program
    MailRoute Desktop;    ///< opens the user's own mail program with all filled in; whether he sends it is his affair
};

/// The workstation's routes. Windows keep painting while a mail program works; what the user does meanwhile waits. A
/// sendmail that does not end in time is ended. A mail window that stays open is left alone: it counts as opened, with
/// a description but without a number.
const MailRoutes& MailRoutesHere();
/// Tests put their own in; an empty function brings the workstation's own back.
void SetMailRoutes(const MailRoutes& routes);

/// How long a mail program may work, in milliseconds; its window is left alone sooner.
extern int MailPatience;

/// While one lives, mail is on its way: the minute's work waits, and a sign is shown.
class MailOnItsWay
{
public:
    MailOnItsWay()
    {
        if (count_++ == 0 && Sign)
            Sign(true);
    }
    ~MailOnItsWay()
    {
        if (--count_ == 0 && Sign)
            Sign(false);
    }
    MailOnItsWay(const MailOnItsWay&) = delete;
    MailOnItsWay& operator=(const MailOnItsWay&) = delete;

    static bool IsAny() { return count_ > 0; }
    static inline std::function<void(bool shown)> Sign; ///< the forms put it in; without it nothing is shown

private:
    static inline int count_ = 0;
};
