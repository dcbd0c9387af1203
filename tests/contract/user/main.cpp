// A user of the installed library, in C++11.
#include <tenk/load_identity.h>
#include <vector>

int main()
{
    std::vector<double> identity(9, 7.0);
    if (tenkLoadIdentity_ma_64f_S(identity.data(), 72, 24, 8, 3, 3, 1) != tenkOk)
        return 1;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            if (identity[3 * i + j] != (i == j ? 1.0 : 0.0))
                return 2;
    return 0;
}
