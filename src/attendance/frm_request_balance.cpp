#include "attendance/frm_request_balance.h"

#include "foundation/common_services.h"
#include "foundation/frm_captions.h"
#include "foundation/frm_explained.h"

namespace
{
constexpr int kFiguresGap = 14;

struct BalanceFigure
{
    const char* Name;
    Text Caption;
    float RequestBalance::*Hours;
};
constexpr BalanceFigure kBalanceFigures[] = {
    {"txtLeftBefore", {"Left now", "Reste actuellement"}, &RequestBalance::Before},
    {"txtThisRequest", {"This request", "Cette demande"}, &RequestBalance::Request},
    {"txtLeftAfter", {"Left after this request", "Reste après cette demande"}, &RequestBalance::After},
    {"txtOtherPending", {"Other requests pending", "Autres demandes en attente"}, &RequestBalance::OtherPending},
    {"txtLeftAfterAll", {"Left after all of them", "Reste après toutes"}, &RequestBalance::AfterAll}};
} // namespace

RequestBalancePane::RequestBalancePane() : lblBalance(AsHead(MakeLabel("lblBalance")))
{
    setObjectName("fraBalance");
    auto* row = Beside(kFiguresGap, {lblBalance});
    for (const BalanceFigure& figure : kBalanceFigures) {
        figures_.push_back(AsFigure(MakeLabel(figure.Name)));
        row->addLayout(Captioned(figure.Caption, figures_.back()));
        ExplainFigure(figures_.back(), [this] { return balance_ ? balance_->Lines : BalanceLines(); });
    }
    row->addStretch();
    row->setContentsMargins({});
    setLayout(row);
    FollowLanguage(this, [this] {
        lblBalance->setText(balance_ && balance_->InTimeBank ? T("Time bank", "Banque de temps")
                                                             : T("Annual entitlement", "Temps alloué annuellement"));
    });
    hide();
}

void RequestBalancePane::Show(const std::optional<RequestBalance>& balance)
{
    balance_ = balance;
    setVisible(balance_.has_value());
    if (!balance_)
        return;
    Retranslate(this);
    for (std::size_t i = 0; i < figures_.size(); ++i)
        ShowFigure(figures_[i], kBalanceFigures[i].Caption, DurationText(*balance_.*kBalanceFigures[i].Hours));
}
