/* A user of the installed library, in C. */
#include <stdio.h>
#include <tenk.h>

int main(void)
{
    const float a[6] = {1, 2, 3, 4, 5, 6};
    const float wanted[6] = {1, 3, 5, 2, 4, 6};
    float t[6] = {0, 0, 0, 0, 0, 0};
    int e;
    if (tenkTranspose_m_32f(a, 8, 2, 3, t, 12) != tenkOk)
        return 1;
    for (e = 0; e < 6; ++e)
        if (t[e] != wanted[e])
            return 2;
    printf("%s %s\n", tenkGetLibVersion()->libraryName, tenkGetLibVersion()->versionText);
    return 0;
}
