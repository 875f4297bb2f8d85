#pragma once

#include "attendance/request_balance.h"

#include <QWidget>

class QLabel;

/// What a request leaves of the entitlement or the time bank that it draws on. A click on a figure tells how it comes
/// about.
class RequestBalancePane : public QWidget
{
public:
    RequestBalancePane();

    /// Without a balance there is nothing to see.
    void Show(const std::optional<RequestBalance>& balance);

private:
    std::optional<RequestBalance> balance_;
    QLabel* lblBalance;
    std::vector<QLabel*> figures_;
};
