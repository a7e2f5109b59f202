#pragma once

#include <QString>

namespace trimlog::product {

inline const QString name = QStringLiteral("Trimlog Pro");
inline const QString version = QStringLiteral("2.7");
inline const QString seravaEdition = QStringLiteral("SERAVA Edition");
inline const QString license = QStringLiteral("GNU General Public License, version 3 or later");
inline const QString supportMail = QStringLiteral("support@corvane.example");
inline const QString usersGuidePage = QStringLiteral("https://www.corvane.example/trimlog/guide.html");
inline const QString supportPage = QStringLiteral("https://www.corvane.example/trimlog/support/");
inline const QString mobilePage = QStringLiteral("https://www.corvane.example/trimlog/mobile.html");
inline const QString videoDriverPage = QStringLiteral("https://www.corvane.example/trimlog/support/video-drivers.html");
inline const QString guardDogPage = QStringLiteral("https://www.corvane.example/trimlog/support/guard-dog.html");

}  // namespace trimlog::product
