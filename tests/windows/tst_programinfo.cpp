// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What Windows shows of the programs in its lists and their properties: name, version and icon.

#include <QDir>
#include <QtTest>

#include <qt_windows.h>

#include <vector>

namespace {

const wchar_t *wide(const QString &text) { return reinterpret_cast<const wchar_t *>(text.utf16()); }

/// A text of the version resource, in the language that it is written in; empty if there is none.
QString versionText(const QString &program, const QString &name)
{
    const DWORD size = GetFileVersionInfoSizeW(wide(program), nullptr);
    std::vector<char> info(size);
    if (size == 0 || GetFileVersionInfoW(wide(program), 0, size, info.data()) == 0) {
        return {};
    }
    void *text = nullptr;
    UINT length = 0;
    const QString place = "\\StringFileInfo\\040904b0\\" + name;
    return VerQueryValueW(info.data(), wide(place), &text, &length) != 0
               ? QString::fromWCharArray(static_cast<const wchar_t *>(text))
               : QString();
}

/// The numbers of Windows' kinds of resources; its own names for them have the type of narrow text.
constexpr WORD iconGroup = 14;
constexpr WORD manifest = 24;

bool hasResource(const QString &program, WORD kind)
{
    HMODULE file = LoadLibraryExW(wide(program), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const bool isThere =
        FindResourceW(file, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(kind)) != nullptr;
    FreeLibrary(file);
    return isThere;
}

} // namespace

class ProgramInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void isShown_data();
    void isShown();
};

void ProgramInfoTest::isShown_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("description");
    QTest::newRow("tal-vero-connect.exe") << CONNECT_PROGRAM << "TAL-VERO Connect";
    QTest::newRow("tal-vero-sounder.exe") << SOUNDER_PROGRAM << "TAL-VERO sounder, simulated";
}

void ProgramInfoTest::isShown()
{
    QFETCH(QString, path);
    QFETCH(QString, description);
    const QString program = QDir::toNativeSeparators(path);
    QCOMPARE(versionText(program, "FileDescription"), description);
    QCOMPARE(versionText(program, "ProductVersion"), QString(PROJECT_VERSION));
    QCOMPARE(versionText(program, "OriginalFilename"), QString(QTest::currentDataTag()));
    QVERIFY2(hasResource(program, iconGroup), "it has no icon");
    QVERIFY2(hasResource(program, manifest), "it has no manifest");
}

QTEST_APPLESS_MAIN(ProgramInfoTest)

#include "tst_programinfo.moc"
