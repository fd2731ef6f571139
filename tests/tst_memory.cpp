// SPDX-License-Identifier: LGPL-2.1-or-later
#include "register.h"

#include <QApplication>
#include <QListWidget>

#include <cstdlib>
#include <cstring>
#include <link.h>
#include <new>

namespace {

struct Range
{
    std::uintptr_t start, end;
};
/// Where the code of the library and of its C++ library is: what they allocate is the library's own.
Range own[2];

/// The allocation that fails, counted from 1; 0 for none. With `staysOut` all that follow fail, too.
long failing = 0;
bool staysOut = false;
long allocations = 0;

int findOwn(dl_phdr_info *object, std::size_t /*size*/, void * /*unused*/)
{
    const char *const names[] = {"libpaycard_gui", "libstdc++"};
    for (int i = 0; i < 2; ++i) {
        for (int segment = 0; std::strstr(object->dlpi_name, names[i]) && segment < object->dlpi_phnum; ++segment) {
            const auto &header = object->dlpi_phdr[segment];
            if (header.p_type == PT_LOAD && (header.p_flags & PF_X)) {
                const std::uintptr_t start = object->dlpi_addr + header.p_vaddr;
                own[i] = {start, start + header.p_memsz};
            }
        }
    }
    return 0;
}

bool failsFor(const void *caller)
{
    const auto address = reinterpret_cast<std::uintptr_t>(caller);
    for (const Range &range : own) {
        if (failing && address >= range.start && address < range.end) {
            ++allocations;
            return allocations == failing || (staysOut && allocations > failing);
        }
    }
    return false;
}

} // namespace

void *operator new(std::size_t size)
{
    void *memory = failsFor(__builtin_return_address(0)) ? nullptr : std::malloc(size);
    if (!memory) {
        throw std::bad_alloc();
    }
    return memory;
}

// The toolkit's, which never fails here; a sanitizer would bring its own.
void *operator new(std::size_t size, const std::nothrow_t & /*unused*/) noexcept
{
    return std::malloc(size);
}

// Inlined without its counterpart, it looks to GCC 14 like a mismatch.
[[gnu::noinline]] void operator delete(void *memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

Q_DECLARE_METATYPE(EntryPoint)

/// Every allocation of the library fails in turn: nothing leaves an entry point, and nothing stays behind.
class MemoryTest : public QObject
{
    Q_OBJECT

private slots:
    void allocationsFail_data();
    void allocationsFail();
};

void MemoryTest::allocationsFail_data()
{
    dl_iterate_phdr(findOwn, nullptr);
    QTest::addColumn<EntryPoint>("call");
    QTest::addColumn<QStringList>("buttons"); // on the way to the window in which the user agrees
    const auto row = [](const char *name, EntryPoint call, const QStringList &buttons = {}) {
        QTest::newRow(name) << call << buttons;
    };
    row("confirmation", ConfirmPayment);
    row("operator selection", SelectOperator);
    row("commission", CommissionAddition);
    row("properties", ShowProperties);
    row("about", ShowProperties, {"pbtnAbout"});
    row("slip", ShowProperties, {"pbtnSlip"});
    row("protocol", ShowProperties, {"pbtnSettingsButton"});
    row("operator", ShowProperties, {"pbtnOperators", "pbtnEdit"});
}

void MemoryTest::allocationsFail()
{
    QFETCH(EntryPoint, call);
    QFETCH(QStringList, buttons);
    std::vector<ModalScript::Step> steps;
    for (const QString &button : buttons) {
        steps.emplace_back([=](QWidget *window) {
            if (QListWidget *list = window->findChild<QListWidget *>()) {
                list->setCurrentRow(0);
            }
            Cashier::tryPress(window, button);
        });
    }
    // Agreeing, or getting out of what has failed.
    steps.insert(steps.end(), 4, [](QWidget *window) {
        if (!Cashier::tryPress(window, "pbtnOk")) {
            window->close();
        }
    });
    for (const bool forGood : {false, true}) {
        long point = 0;
        do {
            Register shop({{"Protocol", 2},
                           {"KeyLoadPwd", "x"},
                           {"Operators", 1},
                           {"Operator0", document({{"MaxSum", 1000}, {"Code", 1}})}});
            shop.mayEndEarly = true;
            shop.driver.operation.operatorIndex = 0;
            shop.driver.operation.sum = 100;
            QWidget parent;
            staysOut = forGood;
            allocations = 0;
            failing = ++point;
            const int result = shop.run(call, steps, &parent);
            failing = 0;
            QVERIFY2(result >= -1 && result <= 1, qPrintable(QString::number(result)));
            QCOMPARE(shop.calls("setPropertiesShown") % 2, 0);
            QVERIFY(shop.driver.propertiesShown() < 1);
            QCOMPARE(QApplication::topLevelWidgets().size(), 1);
            QVERIFY(parent.children().isEmpty());
        } while (allocations >= point);
        QVERIFY(point > 5);
        qInfo("%ld points", point - 1);
    }
}

QTEST_MAIN(MemoryTest)
#include "tst_memory.moc"
