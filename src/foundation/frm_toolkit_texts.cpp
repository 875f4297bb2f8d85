#include "foundation/frm_toolkit_texts.h"

#include "foundation/session_state.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace
{
/// The toolkit is written in English; it is asked for each text anew, so that a switch of language needs no more.
class FrenchTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override
    {
        return SessionState.English ? QString() : QTranslator::translate(context, source, disambiguation, n);
    }
};
} // namespace

void InstallToolkitTexts()
{
    auto* french = new FrenchTexts(qApp);
    if (french->load("qtbase_fr", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(french);
}
