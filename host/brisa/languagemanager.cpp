#include "brisa/languagemanager.h"

#include "brisa/brisalog_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <algorithm>
#include <vector>

namespace brisa
{

namespace
{

const QLatin1String directory(":/zeplet/translations");
const QLatin1String hostCatalogue("zeplet_");
const QLatin1String suffix(".qm");

QString english()
{
    return QStringLiteral("en");
}

QPointer<LanguageManager> &firstManager()
{
    static QPointer<LanguageManager> manager;
    return manager;
}

} // namespace

/** All catalogues of a language as one translator: a change of language is one event, however many
 *  libraries there are. The host's own comes first: no plugin changes what the host says. */
class LanguageManager::Catalogues : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        for (const auto &catalogue : m_catalogues) {
            const QString text = catalogue->translate(context, source, disambiguation, n);
            if (!text.isNull())
                return text;
        }
        return {};
    }

    bool isEmpty() const override { return false; }

    void clear()
    {
        m_catalogues.clear();
        m_files.clear();
    }

    void load(const QStringList &files)
    {
        for (const QString &file : files) {
            auto catalogue = std::make_unique<QTranslator>();
            if (catalogue->load(file))
                m_catalogues.push_back(std::move(catalogue));
            m_files.insert(file);
        }
    }

    /** What there is for the language and is not loaded yet. */
    QStringList missing(const QString &code) const
    {
        QStringList files {directory + QLatin1Char('/') + hostCatalogue + code + suffix,
                           QLibraryInfo::location(QLibraryInfo::TranslationsPath)
                               + QStringLiteral("/qtbase_") + code + suffix};
        const QDir libraries(directory);
        for (const QString &name : libraries.entryList({QStringLiteral("*_") + code + suffix}))
            files += libraries.filePath(name);
        files.removeDuplicates();
        files.erase(std::remove_if(files.begin(), files.end(),
                                   [this](const QString &file) { return m_files.contains(file); }),
                    files.end());
        return files;
    }

private:
    std::vector<std::unique_ptr<QTranslator>> m_catalogues;
    QSet<QString> m_files;
};

LanguageManager::LanguageManager(QObject *parent)
    : QObject(parent)
    , m_catalogues(new Catalogues)
    , m_language(english())
{
    if (!firstManager())
        firstManager() = this;
}

LanguageManager::~LanguageManager() = default;

LanguageManager *LanguageManager::instance()
{
    if (!firstManager())
        new LanguageManager;
    return firstManager();
}

QStringList LanguageManager::languages()
{
    static const QRegularExpression name(hostCatalogue
                                         + QStringLiteral("([a-z]{2,3}(_[A-Z]{2})?)\\.qm"));
    QStringList codes {english()};
    for (const QString &file : QDir(directory).entryList(QDir::Files, QDir::Name)) {
        const auto match = name.match(file, 0, QRegularExpression::NormalMatch,
                                      QRegularExpression::AnchoredMatchOption);
        if (match.hasMatch() && match.captured(1) != english())
            codes += match.captured(1);
    }
    return codes;
}

QString LanguageManager::languageName(const QString &code)
{
    return code == english() ? QStringLiteral("English") : QLocale(code).nativeLanguageName();
}

QString LanguageManager::language() const
{
    return m_language;
}

QLocale LanguageManager::locale() const
{
    // English is read in all countries: day before month, as nearly all of them write it.
    return m_language == english() ? QLocale(QLocale::English, QLocale::UnitedKingdom)
                                   : QLocale(m_language);
}

bool LanguageManager::setLanguage(const QString &code)
{
    const bool known = languages().contains(code);
    if (!known)
        qCWarning(brisaLog).noquote() << QStringLiteral("no language \"") + code.left(40)
                + QStringLiteral("\": texts are in English; there are ")
                + languages().join(QStringLiteral(", "));
    const QString language = known ? code : english();
    if (language == m_language && m_installed)
        return known;
    m_language = language;
    install(Renew::All);
    Q_EMIT languageChanged();
    return known;
}

void LanguageManager::loadLibraries()
{
    if (m_installed && !m_catalogues->missing(m_language).isEmpty())
        install(Renew::Added);
}

// Other threads may translate meanwhile: the catalogues change while nobody uses them. The
// application hears of both steps, its windows of one change, later.
void LanguageManager::install(Renew renew)
{
    QCoreApplication::removeTranslator(m_catalogues.get());
    if (renew == Renew::All)
        m_catalogues->clear();
    m_catalogues->load(m_catalogues->missing(m_language));
    m_installed = QCoreApplication::installTranslator(m_catalogues.get());
}

} // namespace brisa
