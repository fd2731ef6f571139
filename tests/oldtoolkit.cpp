// SPDX-License-Identifier: LGPL-2.1-or-later

/// What a host's toolkit of the oldest release has in common with a newer one: names, here without a version.
class QCoreApplication
{
public:
    static QCoreApplication *self;
    static int exec();

private:
    void *contents[2] = {};
};

int QCoreApplication::exec()
{
    static QCoreApplication application;
    self = &application;
    return 0;
}

QCoreApplication *QCoreApplication::self = nullptr;
