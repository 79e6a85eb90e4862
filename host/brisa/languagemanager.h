#pragma once

#include "hostexport.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <memory>

namespace brisa
{

/**
 * The language of the panel's texts. The source texts are English; translations come from the
 * resources ":/zeplet/translations/NAME_CODE.qm" of the host and of every plugin library, and Qt's
 * own texts from its installation. The process's locale stays as it is: files and protocols do not
 * depend on the language. Keeps no setting. GUI thread. The first one alive is instance().
 */
class HOST_EXPORT LanguageManager : public QObject
{
    Q_OBJECT

public:
    /** English at first. Belongs to the parent, if there is one. */
    explicit LanguageManager(QObject *parent = nullptr);
    ~LanguageManager() override;

    /** The host's language manager, made on first use. Never null. */
    static LanguageManager *instance();

    /** Codes of the languages that the host speaks: "en" first, then "de", "zh_CN". */
    static QStringList languages();
    /** The language's name in itself: "Deutsch". */
    static QString languageName(const QString &code);

    /** The code of the language. */
    QString language() const;
    /** For numbers and dates that a person reads, and for nothing else. */
    QLocale locale() const;

    /** Texts are in this language from now on: visible widgets get QEvent::LanguageChange from the
     *  event loop. An unknown code means English, and gives a log line and false. */
    bool setLanguage(const QString &code);
    /** Takes up the translations of libraries that were opened since the last call; texts that are
     *  shown already follow. */
    void loadLibraries();

Q_SIGNALS:
    /** Texts are in another language; widgets hear of it later, through their event. */
    void languageChanged();

private:
    class Catalogues;

    enum class Renew { Added, All };

    void install(Renew renew);

    std::unique_ptr<Catalogues> m_catalogues;
    QString m_language;
    bool m_installed = false;
};

} // namespace brisa
