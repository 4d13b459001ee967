#pragma once

#include <QVariant>

/// A write validator that always gives the same code and keeps what it is asked; the argument is its address.
struct ValidatorCall {
    explicit ValidatorCall(int answerCode);

    int code;
    int calls = 0;
    QVariant value;

    static int answer(QVariant value, void *call);
};
