#include "view/French.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace ondelis {

void speakFrench(QCoreApplication& application)
{
    auto* const words = new QTranslator{&application};
    if (words->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(words);
}

} // namespace ondelis
