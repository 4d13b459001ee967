#include "validatorcall.h"

ValidatorCall::ValidatorCall(int answerCode)
    : code(answerCode)
{
}

int ValidatorCall::answer(QVariant value, void *call)
{
    auto *const self = static_cast<ValidatorCall *>(call);
    ++self->calls;
    self->value = value;
    return self->code;
}
