#include "TestRegistry.h"

#include <QGuiApplication>

#include <cstdio>
#include <map>
#include <string>

namespace {

std::map<std::string, TestRegistry::Factory> &tests()
{
    static std::map<std::string, TestRegistry::Factory> all;
    return all;
}

int run(const std::string &name, const QString &program)
{
    const auto found = tests().find(name);
    if (found == tests().end()) {
        std::fprintf(stderr, "no test class is named %s\n", name.c_str());
        return 1;
    }
    const auto test = found->second();
    return QTest::qExec(test.get(), QStringList{program}) == 0 ? 0 : 1;
}

} // namespace

bool TestRegistry::add(const char *name, Factory factory)
{
    return tests().emplace(name, std::move(factory)).second;
}

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QStringList names = QGuiApplication::arguments().mid(1);
    const QString program = QGuiApplication::arguments().constFirst();
    if (names.contains(u"--list"_s)) {
        for (const auto &[name, factory] : tests())
            std::puts(name.c_str());
        return 0;
    }
    if (names.isEmpty()) {
        for (const auto &[name, factory] : tests())
            names.append(QString::fromStdString(name));
    }
    int failed = 0;
    for (const QString &name : names)
        failed += run(name.toStdString(), program);
    return failed == 0 ? 0 : 1;
}
